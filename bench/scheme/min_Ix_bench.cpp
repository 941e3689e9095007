#include <benchmark/benchmark.h>

#include "bench/scheme/after_bu_mo.h"
#include "scheme/min_Ix.h"

namespace zep {
namespace {

BENCHMARK(bench_after_bu_mo<min_Ix>)
    ->Name("min_Ix, P^3")
    ->Arg(100)
    ->Arg(500)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep
