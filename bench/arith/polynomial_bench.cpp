// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include <sstream>

#include "arith/polynomial.h"
#include "bench/arith/monomials.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// Items are the terms of one summand; the other has as many.
void bench_addition(benchmark::State& state) {
  const ring_in_force ring;
  const int terms = static_cast<int>(state.range(0));
  const polynomial f = irregular_polynomial(terms, 1);
  const polynomial g = irregular_polynomial(terms, 2);
  for ([[maybe_unused]] const auto _ : state) {
    benchmark::DoNotOptimize(f + g);
  }
  state.SetItemsProcessed(state.iterations() * terms);
}

void print_on_screen(std::ostream& out, const polynomial& f) { out << f; }

void print_into_file(std::ostream& out, const polynomial& f) { f.put(out); }

// Items are terms.
template <void (*print)(std::ostream&, const polynomial&)>
void bench_printing(benchmark::State& state) {
  const ring_in_force ring;
  const int terms = static_cast<int>(state.range(0));
  const polynomial f = irregular_polynomial(terms, 1);
  std::ostringstream out;
  for ([[maybe_unused]] const auto _ : state) {
    // Over what was printed before.
    out.seekp(0);
    print(out, f);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * terms);
}

BENCHMARK(bench_addition)->Name("sum of polynomials")->ArgName("terms")->Arg(100)->Arg(1000);
BENCHMARK(bench_printing<print_on_screen>)->Name("screen form")->ArgName("terms")->Arg(1000);
BENCHMARK(bench_printing<print_into_file>)->Name("file form")->ArgName("terms")->Arg(1000);

}  // namespace
}  // namespace zep::tests
