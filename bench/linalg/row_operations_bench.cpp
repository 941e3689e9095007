// SPDX-License-Identifier: GPL-3.0-or-later

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include "bench/irregular_numbers.h"
#include "linalg/kernels/row_kernels.h"
#include "linalg/row_operations.h"
#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

row some_row(std::size_t n, std::uint64_t start) {
  irregular_numbers numbers(start);
  row elements(n);
  for (Fp8& x : elements) x = Fp8(numbers.below(Fp8::prime));
  return elements;
}

// Two rows, and a factor that is neither 0 nor 1 nor p - 1 where there is another one.
struct operands {
  row d;
  row s;
  Fp8 c;
};

void plain_axpy(operands& x) {
  for (std::size_t i = 0; i < x.d.size(); ++i) x.d[i] += x.c * x.s[i];
}

void run_axpy(operands& x) { axpy(x.d, x.s, x.c); }

void run_addition(operands& x) { axpy(x.d, x.s, Fp8(1)); }

void run_subtraction(operands& x) { axpy(x.d, x.s, -Fp8(1)); }

void run_scale(operands& x) { scale(x.d, x.c); }

void run_product(operands& x) { pointwise_product(x.d, x.d, x.s); }

void run_dot(operands& x) { benchmark::DoNotOptimize(dot(x.d, x.s)); }

using operation = void (*)(operands&);

void bench(benchmark::State& state, const row_kernels* kernels, operation run) {
  const kernels_in_force forced(*kernels);
  const ring_in_force ring(static_cast<int>(state.range(0)));
  const auto n = static_cast<std::size_t>(state.range(1));
  operands x = {some_row(n, 1), some_row(n, 2), Fp8(Fp8::prime / 2)};
  for ([[maybe_unused]] const auto _ : state) {
    run(x);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * state.range(1));
}

void add(const std::string& name, const row_kernels* kernels, operation run) {
  benchmark::RegisterBenchmark((name + ", " + kernels->name).c_str(), bench, kernels, run)
      ->ArgsProduct({{2, 101, 251}, {16, 64, 100, 200, 400, 1000, 4000}});
}

void add_all(const std::string& name, operation run) {
  for (const row_kernels* const kernels : runnable_kernels()) add(name, kernels, run);
}

// All the benchmarks; the plain form of axpy is there to compare the look-ups with.
const bool added = [] {
  benchmark::RegisterBenchmark("axpy, plain", bench, &look_up_kernels, plain_axpy)
      ->ArgsProduct({{2, 101, 251}, {16, 64, 100, 200, 400, 1000, 4000}});
  add_all("axpy", run_axpy);
  add_all("axpy by 1", run_addition);
  add_all("axpy by -1", run_subtraction);
  add_all("scale", run_scale);
  add_all("pointwise_product", run_product);
  add_all("dot", run_dot);
  return true;
}();

}  // namespace
}  // namespace zep::tests
