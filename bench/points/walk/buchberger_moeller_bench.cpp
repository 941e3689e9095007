#include <benchmark/benchmark.h>

#include "bench/points/points.h"
#include "points/walk/buchberger_moeller.h"

namespace zep::tests {
namespace {

void bench_bu_mo(benchmark::State& state) {
  const silence quiet;
  set_ring(101, 3);
  const scheme points = irregular_points(static_cast<int>(state.range(0)));
  for ([[maybe_unused]] const auto _ : state) {
    scheme X = points;
    bu_mo(X);
    benchmark::DoNotOptimize(X.delta);
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
