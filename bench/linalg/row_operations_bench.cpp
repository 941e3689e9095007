#include <benchmark/benchmark.h>

#include <vector>

#include "linalg/row_operations.h"

namespace zep {
namespace {

// A row of n elements that are neither zero nor regular.
std::vector<Fp8> some_row(std::size_t n, unsigned salt) {
  std::vector<Fp8> row(n);
  unsigned x = salt;
  for (Fp8& element : row) {
    x = x * 1664525U + 1013904223U;
    element = static_cast<int>(x >> 9U);
  }
  return row;
}

void set_prime(int p) {
  Fp8::prime = p;
  Fp8::init();
}

// The plain form of axpy, to compare with: one look-up an operation.
void look_up_axpy(Fp8* d, const Fp8* s, Fp8 c, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) d[i] += c * s[i];
}

template <void (*axpy_form)(Fp8*, const Fp8*, Fp8, std::size_t)>
void bench_axpy(benchmark::State& state) {
  set_prime(static_cast<int>(state.range(0)));
  const auto n = static_cast<std::size_t>(state.range(1));
  std::vector<Fp8> d = some_row(n, 1);
  const std::vector<Fp8> s = some_row(n, 2);
  const Fp8 c(Fp8::prime - 2);
  for ([[maybe_unused]] const auto _ : state) {
    axpy_form(d.data(), s.data(), c, n);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * state.range(1));
}

BENCHMARK(bench_axpy<look_up_axpy>)->Name("axpy, look-ups")->ArgsProduct({{101, 251}, {100, 1000}});
BENCHMARK(bench_axpy<axpy>)->Name("axpy")->ArgsProduct({{101, 251}, {100, 1000}});

}  // namespace
}  // namespace zep
