#include <benchmark/benchmark.h>

#include <iostream>
#include <sstream>

#include "arith/ring.h"
#include "scheme/bu_mo.h"
#include "scheme/progress.h"
#include "scheme/separators.h"

namespace zep {
namespace {

// Puts aside what the computations print while it lives.
class silence {
 public:
  silence() : before_(std::cout.rdbuf(dropped_.rdbuf())) { verbose = 0; }
  ~silence() { std::cout.rdbuf(before_); }
  silence(const silence&) = delete;
  silence& operator=(const silence&) = delete;

 private:
  std::ostringstream dropped_;
  std::streambuf* before_;
};

// s points of P^3 over F_101 with irregular coordinates. A repetition would not matter here.
scheme some_points(int s) {
  Fp8::prime = 101;
  Fp8::init();
  set_dimension(3);
  scheme X(s);
  unsigned x = 1;
  for (int i = 0; i < s; ++i) {
    for (int j = 0; j < dim; ++j) {
      x = x * 1664525U + 1013904223U;
      X.P[i][j] = static_cast<int>(x >> 9U);
    }
  }
  return X;
}

void bench_bu_mo(benchmark::State& state) {
  const silence quiet;
  const scheme points = some_points(static_cast<int>(state.range(0)));
  for ([[maybe_unused]] const auto _ : state) {
    scheme X = points;
    bu_mo(X);
    benchmark::DoNotOptimize(X.delta);
  }
}

void bench_sep(benchmark::State& state) {
  const silence quiet;
  scheme points = some_points(static_cast<int>(state.range(0)));
  bu_mo(points);
  for ([[maybe_unused]] const auto _ : state) {
    scheme X = points;
    sep(X);
    benchmark::DoNotOptimize(X.is_CB);
  }
}

BENCHMARK(bench_bu_mo)
    ->Name("bu_mo, P^3")
    ->Arg(100)
    ->Arg(300)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(bench_sep)
    ->Name("sep, P^3")
    ->Arg(100)
    ->Arg(300)
    ->Arg(1000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zep
