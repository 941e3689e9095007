// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include "bench/points/after_bu_mo.h"
#include "points/ideal/artinian_forms.h"
#include "points/ideal/minimal_generators.h"

namespace zep::tests {
namespace {

ideal generators_of(const order_ideal& X) { return min_Ix(X, Can_Lf(X)); }

BENCHMARK(bench_after_bu_mo<generators_of>)
    ->Name("min_Ix")
    ->ArgNames({"points", "n"})
    ->Args({100, 3})
    ->Args({500, 3})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep::tests
