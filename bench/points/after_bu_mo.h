// SPDX-License-Identifier: GPL-3.0-or-later
// Benchmarks of what follows Buchberger-Moeller.
#pragma once

#include <benchmark/benchmark.h>

#include "bench/points/points.h"

namespace zep::tests {

// Times a computation on irregular points of P^n over F_101 whose order ideal is known; the
// arguments are their number and n. What else the computation needs is part of its time.
template <auto compute>
void bench_after_bu_mo(benchmark::State& state) {
  const ring_in_force in_force(ring_of(101, static_cast<int>(state.range(1))));
  const order_ideal X = bu_mo(irregular_points(static_cast<int>(state.range(0))), nobody());
  for ([[maybe_unused]] const auto _ : state) {
    auto result = compute(X);
    benchmark::DoNotOptimize(result);
  }
}

}  // namespace zep::tests
