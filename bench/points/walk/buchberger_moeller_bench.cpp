// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include "bench/points/points.h"

namespace zep::tests {
namespace {

void bench_bu_mo(benchmark::State& state) {
  const ring_in_force in_force(ring_of(101, 3));
  const matrix P = irregular_points(static_cast<int>(state.range(0)));
  for ([[maybe_unused]] const auto _ : state) {
    const order_ideal X = bu_mo(P, nobody());
    benchmark::DoNotOptimize(X.H.delta);
  }
}

BENCHMARK(bench_bu_mo)
    ->Name("bu_mo, P^3")
    ->Arg(100)
    ->Arg(300)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep::tests
