#include <benchmark/benchmark.h>

#include "bench/points/after_bu_mo.h"
#include "points/ideal/socle.h"

namespace zep::tests {
namespace {

BENCHMARK(bench_after_bu_mo<socle>)
    ->Name("socle")
    ->ArgNames({"points", "n"})
    ->Args({100, 3})
    ->Args({500, 3})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep::tests
