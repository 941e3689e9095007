// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include "bench/points/after_bu_mo.h"
#include "points/walk/separators.h"

namespace zep::tests {
namespace {

verdicts verdicts_of(const order_ideal& X) { return sep(X, nobody()); }

BENCHMARK(bench_after_bu_mo<verdicts_of>)
    ->Name("sep")
    ->ArgNames({"points", "n"})
    ->Args({100, 3})
    ->Args({300, 3})
    ->Args({1000, 3})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep::tests
