#include <benchmark/benchmark.h>

#include "bench/points/after_bu_mo.h"
#include "points/ideal/minimal_generators.h"

namespace zep::tests {
namespace {

BENCHMARK(bench_after_bu_mo<min_Ix>)
    ->Name("min_Ix")
    ->ArgNames({"points", "n"})
    ->Args({100, 3})
    ->Args({500, 3})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep::tests
