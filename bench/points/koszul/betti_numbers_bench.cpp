// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include <random>

#include "bench/points/after_bu_mo.h"
#include "points/ideal/artinian_forms.h"
#include "points/koszul/betti_numbers.h"
#include "tests/points/self_associated.h"

namespace zep::tests {
namespace {

betti_table betti(const order_ideal& X) { return betti_numbers(X, Can_Lf(X)); }

BENCHMARK(bench_after_bu_mo<betti>)
    ->Name("betti_numbers")
    ->ArgNames({"points", "n"})
    ->Args({16, 10})
    ->Args({50, 10})
    ->Args({100, 10})
    ->Args({200, 5})
    ->Args({500, 5})
    ->Unit(benchmark::kMillisecond);

// With a symmetric table: those of general canonical curves of genus n + 2.
void bench_self_associated(benchmark::State& state) {
  const ring_in_force in_force(ring_of(101, static_cast<int>(state.range(0))));
  std::mt19937 random(1);
  const order_ideal X = bu_mo(self_associated_points(random), nobody());
  for ([[maybe_unused]] const auto _ : state) {
    const betti_table B = betti(X);
    if (B(7, 1) != B(dim - 7, 2)) state.SkipWithError("the table is not symmetric");
  }
}

BENCHMARK(bench_self_associated)
    ->Name("betti_numbers, self-associated")
    ->ArgName("n")
    ->Arg(10)
    ->Arg(13)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep::tests
