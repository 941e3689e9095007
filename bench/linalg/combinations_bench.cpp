// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "bench/irregular_numbers.h"
#include "linalg/combinations.h"
#include "linalg/kernels/row_kernels.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

matrix some_matrix(int rows, int cols, irregular_numbers& numbers) {
  matrix m(cols, rows);
  for (int i = 0; i < rows; ++i) {
    for (int j = 0; j < cols; ++j) m[i][j] = numbers.below(Fp8::prime);
  }
  return m;
}

template <class View>
std::vector<View> rows_of(matrix& m) {
  std::vector<View> rows;
  rows.reserve(m.rows());
  for (int i = 0; i < m.rows(); ++i) rows.push_back(m[i]);
  return rows;
}

// The arguments are numbers of rows, of summands, of elements in a row.
void bench_combinations(benchmark::State& state, const row_kernels* kernels) {
  const kernels_in_force forced(*kernels);
  const ring_in_force ring(251);
  const int rows = static_cast<int>(state.range(0));
  const int summands = static_cast<int>(state.range(1));
  const int n = static_cast<int>(state.range(2));
  irregular_numbers numbers(1);
  matrix c = some_matrix(rows, n, numbers);
  matrix b = some_matrix(summands, n, numbers);
  const matrix a = some_matrix(rows, summands, numbers);
  const std::vector<row_view> sums = rows_of<row_view>(c);
  const std::vector<const_row_view> added = rows_of<const_row_view>(b);
  for ([[maybe_unused]] const auto _ : state) {
    add_combinations(sums, a, added);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * rows * summands * n);
}

const bool added = [] {
  for (const row_kernels* const kernels : runnable_kernels()) {
    const std::string name = std::string("add_combinations, ") + kernels->name;
    benchmark::RegisterBenchmark(name.c_str(), bench_combinations, kernels)
        ->ArgNames({"rows", "summands", "n"})
        ->Args({16, 16, 1000})
        ->Args({128, 1000, 1000})
        ->Args({1000, 128, 1000})
        ->Args({1000, 16, 1000});
  }
  return true;
}();

}  // namespace
}  // namespace zep::tests
