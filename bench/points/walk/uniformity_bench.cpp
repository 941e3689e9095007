// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include <vector>

#include "bench/points/points.h"
#include "linalg/dependent_subset.h"
#include "points/walk/beta_matrix.h"
#include "reference/matrices.h"

namespace zep::tests {
namespace {

// The beta matrix of 28 points of the rational normal curve of P^19: delta is 8, and all of the
// 3108105 choices of 8 rows are independent.
matrix uniform_matrix() {
  return beta_matrix(bu_mo(points_on_a_normal_curve(28), nobody()), nobody()).beta;
}

void bench_walk(benchmark::State& state) {
  const ring_in_force in_force(ring_of(251, 19));
  const matrix beta = uniform_matrix();
  for ([[maybe_unused]] const auto _ : state) {
    const auto dependent = first_dependent_subset(beta, beta.cols(), [](int) {});
    if (dependent) state.SkipWithError("the set is not uniform");
  }
}

// The plain form, to compare with: the determinant of one subset.
void bench_minors(benchmark::State& state) {
  const ring_in_force in_force(ring_of(251, 19));
  const matrix beta = uniform_matrix();
  const std::vector<int> columns = identity_order(8);
  const std::vector<int> rows = {0, 1, 2, 3, 24, 25, 26, 27};
  for ([[maybe_unused]] const auto _ : state) {
    benchmark::DoNotOptimize(minor(beta, columns, rows));
  }
}

BENCHMARK(bench_walk)->Name("all 8-subsets of 28 rows")->Unit(benchmark::kMillisecond);
BENCHMARK(bench_minors)->Name("one 8 x 8 minor");

}  // namespace
}  // namespace zep::tests
