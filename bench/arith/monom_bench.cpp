// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include "arith/monom.h"
#include "bench/arith/monomials.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

constexpr int count = 1000;

void bench_product(benchmark::State& state) {
  const ring_in_force ring(101, static_cast<int>(state.range(0)));
  const std::vector<monom> monomials = irregular_monomials(count);
  for ([[maybe_unused]] const auto _ : state) {
    for_neighbours(monomials,
                   [](const monom& a, const monom& b) { benchmark::DoNotOptimize(a * b); });
  }
  state.SetItemsProcessed(state.iterations() * (count - 1));
}

void bench_hash(benchmark::State& state) {
  const ring_in_force ring(101, static_cast<int>(state.range(0)));
  const std::vector<monom> monomials = irregular_monomials(count);
  for ([[maybe_unused]] const auto _ : state) {
    for (const monom& m : monomials) benchmark::DoNotOptimize(monom_hash()(m));
  }
  state.SetItemsProcessed(state.iterations() * count);
}

BENCHMARK(bench_product)->Name("product of monomials")->ArgName("n")->Arg(3)->Arg(5);
BENCHMARK(bench_hash)->Name("hash of a monomial")->ArgName("n")->Arg(3)->Arg(5);

}  // namespace
}  // namespace zep::tests
