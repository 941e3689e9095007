// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/koszul/subsets.h"

#include <algorithm>
#include <array>

#include "base/interrupt.h"

namespace zep::points {

namespace {

// Pascal's triangle.
constexpr auto binomials = [] {
  std::array<std::array<std::uint32_t, max_variables + 1>, max_variables + 1> C{};
  for (int n = 0; n <= max_variables; ++n) {
    C[n][0] = 1;
    for (int k = 1; k <= n; ++k) C[n][k] = C[n - 1][k - 1] + C[n - 1][k];
  }
  return C;
}();

}  // namespace

std::int64_t binomial(int n, int k) {
  if (k < 0 || k > n) return 0;
  std::int64_t value = 1;
  k = std::min(k, n - k);
  for (int i = 1; i <= k; ++i) value = value * (n - k + i) / i;
  return value;
}

std::size_t position_of(subset T) {
  std::size_t position = 0;
  int smaller = 0;
  for (; T != 0; T &= T - 1) {
    position += binomials[least(T)][++smaller];
  }
  return position;
}

// In this order the sets ascend as numbers.
std::vector<subset> subsets(int n, int i) {
  std::vector<subset> all;
  if (i < 0 || i > n) return all;
  const auto number = static_cast<std::size_t>(binomial(n, i));
  all.reserve(number);
  // The next larger number with as many bits: the lowest run of ones moves its highest bit up, and
  // the others down to the end.
  for (subset T = single(i) - 1; all.size() < number;) {
    heed_interrupt();
    all.push_back(T);
    if (T == 0) break;
    const subset lowest = single(least(T));
    const subset carried = T + lowest;
    T = carried | (((T ^ carried) >> 2U) / lowest);
  }
  return all;
}

}  // namespace zep::points
