#include <benchmark/benchmark.h>

#include "bench/scheme/after_bu_mo.h"
#include "scheme/separators.h"

namespace zep {
namespace {

BENCHMARK(bench_after_bu_mo<sep>)
    ->Name("sep, P^3")
    ->Arg(100)
    ->Arg(300)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep
