#include <benchmark/benchmark.h>

#include "bench/points/after_bu_mo.h"
#include "points/strand/linid.h"
#include "points/strand/linom.h"

namespace zep::tests {
namespace {

void both_strands(scheme& X) {
  linid(X);
  linom(X);
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

BENCHMARK(bench_after_bu_mo<linid>)->Name("linid")->Apply(sizes);
BENCHMARK(bench_after_bu_mo<both_strands>)->Name("linid and linom")->Apply(sizes);

}  // namespace
}  // namespace zep::tests
