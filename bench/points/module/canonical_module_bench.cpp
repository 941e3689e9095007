// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include "bench/points/after_bu_mo.h"
#include "points/module/canonical_module.h"

namespace zep::tests {
namespace {

presentation presentation_of(const order_ideal& X) { return omega(X, nobody()); }

BENCHMARK(bench_after_bu_mo<presentation_of>)
    ->Name("omega")
    ->ArgNames({"points", "n"})
    ->Args({100, 3})
    ->Args({200, 3})
    ->Args({500, 3})
    ->Args({200, 4})
    ->Args({60, 5})
    ->Args({300, 5})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep::tests
