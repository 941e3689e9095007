// Benchmarks of what follows Buchberger-Moeller.
#pragma once

#include <benchmark/benchmark.h>

#include "bench/points/points.h"
#include "points/walk/buchberger_moeller.h"

namespace zep::tests {

// Times a computation on irregular points of P^n over F_101 for which bu_mo alone has run; the
// arguments are their number and n. What else the computation needs is part of its time.
template <void (*compute)(scheme&)>
void bench_after_bu_mo(benchmark::State& state) {
  const silence quiet;
  set_ring(101, static_cast<int>(state.range(1)));
  scheme points = irregular_points(static_cast<int>(state.range(0)));
  bu_mo(points);
  for ([[maybe_unused]] const auto _ : state) {
    scheme X = points;
    compute(X);
    benchmark::DoNotOptimize(X);
  }
}

}  // namespace zep::tests
