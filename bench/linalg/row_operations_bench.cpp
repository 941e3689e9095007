#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

#include "bench/irregular_numbers.h"
#include "linalg/kernels/row_kernels.h"
#include "linalg/row_operations.h"

namespace zep::tests {
namespace {

std::vector<Fp8> some_row(std::size_t n, std::uint64_t start) {
  irregular_numbers numbers(start);
  std::vector<Fp8> row(n);
  for (Fp8& element : row) element = Fp8(numbers.below(Fp8::prime));
  return row;
}

void set_prime(int p) {
  Fp8::prime = p;
  Fp8::init();
}

// Two rows, and a factor that is neither 0 nor 1 nor p - 1 where there is another one.
struct operands {
  std::vector<Fp8> d;
  std::vector<Fp8> s;
  Fp8 c;
};

void plain_axpy(operands& x) {
  for (std::size_t i = 0; i < x.d.size(); ++i) x.d[i] += x.c * x.s[i];
}

void run_axpy(operands& x) { axpy(x.d.data(), x.s.data(), x.c, x.d.size()); }

void run_addition(operands& x) { axpy(x.d.data(), x.s.data(), Fp8(1), x.d.size()); }

void run_subtraction(operands& x) { axpy(x.d.data(), x.s.data(), -Fp8(1), x.d.size()); }

void run_scale(operands& x) { scale(x.d.data(), x.c, x.d.size()); }

void run_product(operands& x) { pointwise_product(x.d.data(), x.d.data(), x.s.data(), x.d.size()); }

void run_dot(operands& x) { benchmark::DoNotOptimize(dot(x.d.data(), x.s.data(), x.d.size())); }

using operation = void (*)(operands&);

void bench(benchmark::State& state, const row_kernels* kernels, operation run) {
  const kernels_in_force forced(*kernels);
  set_prime(static_cast<int>(state.range(0)));
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
