#include <benchmark/benchmark.h>

#include "bench/scheme/points.h"
#include "scheme/bu_mo.h"
#include "scheme/min_Ix.h"
#include "scheme/socle.h"

namespace zep {
namespace {

// Both times include the canonical forms, which whoever comes first has to make.
template <void (*compute)(scheme&)>
void bench_after_bu_mo(benchmark::State& state) {
  const silence quiet;
  set_ring(101, 3);
  scheme points = irregular_points(static_cast<int>(state.range(0)));
  bu_mo(points);
  for ([[maybe_unused]] const auto _ : state) {
    scheme X = points;
    compute(X);
    benchmark::DoNotOptimize(X.Can_Lf);
  }
}

BENCHMARK(bench_after_bu_mo<min_Ix>)
    ->Name("min_Ix, P^3")
    ->Arg(100)
    ->Arg(500)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(bench_after_bu_mo<socle>)
    ->Name("socle, P^3")
    ->Arg(100)
    ->Arg(500)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep
