// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include <utility>
#include <vector>

#include "bench/points/after_bu_mo.h"
#include "points/ideal/artinian_forms.h"
#include "points/ideal/minimal_generators.h"
#include "points/module/canonical_module.h"
#include "points/strand/linid.h"
#include "points/strand/linom.h"

namespace zep::tests {
namespace {

using numbers = std::vector<int>;

numbers strand_of_I_X(const order_ideal& X) {
  const canonical_forms A = Can_Lf(X);
  return linid(min_Ix(X, A), X, A, nobody(), nullptr);
}

std::pair<numbers, numbers> both_strands(const order_ideal& X) {
  return {strand_of_I_X(X), linom(omega(X, nobody()), X, Can_Lf(X), nobody(), nullptr)};
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->ArgNames({"points", "n"})
      ->Args({50, 3})
      ->Args({100, 3})
      ->Args({200, 3})
      ->Args({1000, 3})
      ->Args({200, 4})
      ->Args({40, 5})
      ->Args({300, 5})
      ->Unit(benchmark::kMillisecond);
}

BENCHMARK(bench_after_bu_mo<strand_of_I_X>)->Name("linid")->Apply(sizes);
BENCHMARK(bench_after_bu_mo<both_strands>)->Name("linid and linom")->Apply(sizes);

}  // namespace
}  // namespace zep::tests
