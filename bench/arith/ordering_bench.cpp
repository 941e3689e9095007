// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include "arith/ordering.h"
#include "bench/arith/monomials.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

constexpr int count = 1000;

// Through the pointer, as everything that computes compares. The argument is n.
template <term_order order>
void bench_comparison(benchmark::State& state) {
  const ring_in_force ring(101, static_cast<int>(state.range(0)), order);
  const std::vector<monom> monomials = irregular_monomials(count);
  for ([[maybe_unused]] const auto _ : state) {
    int smaller = 0;
    for_neighbours(monomials, [&](const monom& a, const monom& b) {
      smaller += monom_ordering_lt(a, b) ? 1 : 0;
    });
    benchmark::DoNotOptimize(smaller);
  }
  state.SetItemsProcessed(state.iterations() * (count - 1));
}

BENCHMARK(bench_comparison<term_order::deglex>)
    ->Name("comparison, deglex")
    ->ArgName("n")
    ->Arg(3)
    ->Arg(5);
BENCHMARK(bench_comparison<term_order::degrevlex>)
    ->Name("comparison, degrevlex")
    ->ArgName("n")
    ->Arg(3)
    ->Arg(5);

}  // namespace
}  // namespace zep::tests
