// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include <vector>

#include "bench/irregular_numbers.h"
#include "linalg/matrix.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

matrix irregular_matrix(int cols, int rows) {
  irregular_numbers numbers(1);
  matrix m(cols, rows);
  for (int i = 0; i < rows; ++i) {
    for (int j = 0; j < cols; ++j) m[i][j] = numbers.below(Fp8::prime);
  }
  return m;
}

// Solves the homogeneous system of n equations in `unknowns_an_equation` times as many unknowns.
// Square ones have no solution but zero, and the elimination ends at the last pivot.
template <int unknowns_an_equation>
void bench_solve(benchmark::State& state) {
  const ring_in_force ring;
  const int n = static_cast<int>(state.range(0));
  const matrix equations = irregular_matrix(unknowns_an_equation * n, n);
  for ([[maybe_unused]] const auto _ : state) {
    matrix m = equations;
    std::vector<int> c = identity_order(m.cols());
    std::vector<int> r = identity_order(m.rows());
    benchmark::DoNotOptimize(m.solve(c, r));
  }
}

void bench_rank(benchmark::State& state) {
  const ring_in_force ring;
  const int n = static_cast<int>(state.range(0));
  const matrix m = irregular_matrix(n, n);
  for ([[maybe_unused]] const auto _ : state) {
    benchmark::DoNotOptimize(rank(m));
  }
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->ArgName("n")->Arg(50)->Arg(200)->Arg(500)->Unit(benchmark::kMicrosecond);
}

BENCHMARK(bench_solve<1>)->Name("solve, n x n")->Apply(sizes);
BENCHMARK(bench_solve<2>)->Name("solve, n x 2n")->Apply(sizes);
BENCHMARK(bench_rank)->Name("rank, n x n")->Apply(sizes);

}  // namespace
}  // namespace zep::tests
