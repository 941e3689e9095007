// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/koszul/betti_table.h"

#include <algorithm>

#include "points/koszul/subsets.h"

namespace zep::points {

betti_table::betti_table(int n, int first_row, int last_row)
    : n_(n),
      first_row_(first_row),
      rows_(std::max(last_row - first_row + 1, 0), std::vector<std::int64_t>(n + 1)) {}

std::int64_t betti_table::operator()(int i, int r) const {
  if (i < 0 || i > n_ || r < first_row_ || r > last_row()) return 0;
  return rows_[r - first_row_][i];
}

// With i' = n - i and j' = n + 1 - j, row r = j - i becomes row j' - i' = 1 - r.
betti_table betti_of_w_R(const betti_table& of_R) {
  betti_table of_w_R(of_R.n(), 1 - of_R.last_row(), 1 - of_R.first_row());
  for (int r = of_R.first_row(); r <= of_R.last_row(); ++r) {
    for (int i = 0; i <= of_R.n(); ++i) of_w_R.set(of_R.n() - i, 1 - r, of_R(i, r));
  }
  return of_w_R;
}

int regularity(const betti_table& B) {
  int r = B.last_row();
  const auto is_zero = [&] {
    for (int i = 0; i <= B.n(); ++i) {
      if (B(i, r) != 0) return false;
    }
    return true;
  };
  while (r > B.first_row() && is_zero()) --r;
  return r;
}

int largest_N_p(const betti_table& of_R) {
  const auto is_linear = [&](int i) {
    for (int r = 2; r <= of_R.last_row(); ++r) {
      if (of_R(i, r) != 0) return false;
    }
    return true;
  };
  int p = 0;
  while (p < of_R.n() && is_linear(p + 1)) ++p;
  return p;
}

betti_table over_more_variables(const betti_table& B, int number) {
  betti_table over_all(B.n() + number, B.first_row(), B.last_row());
  for (int r = B.first_row(); r <= B.last_row(); ++r) {
    for (int i = 0; i <= over_all.n(); ++i) {
      std::int64_t sum = 0;
      for (int k = 0; k <= std::min(i, number); ++k) sum += binomial(number, k) * B(i - k, r);
      over_all.set(i, r, sum);
    }
  }
  return over_all;
}

namespace {

// The Hilbert function of the Artinian reduction of s general points, up to its last number that is
// not 0.
std::vector<std::int64_t> general_h_vector(int n, std::int64_t s) {
  std::vector<std::int64_t> h;
  for (int j = 0; s > 0; ++j) {
    h.push_back(std::min(s, binomial(n - 1 + j, j)));
    s -= h.back();
  }
  return h;
}

// For points that span the space.
betti_table expected_of_spanning_points(int n, int s) {
  const std::vector<std::int64_t> h = general_h_vector(n, s);
  const int top = static_cast<int>(h.size()) - 1;
  const bool is_full = h[top] == binomial(n - 1 + top, top);
  // The least degree of a generator.
  const int alpha = is_full ? top + 1 : top;
  betti_table B(n, 0, top);
  B.set(0, 0, 1);
  for (int i = 1; i <= n; ++i) {
    // (-1)^i times the coefficient of t^(i + alpha - 1) in (1 - t)^n times the series of h, which
    // is beta_(i,i+alpha-1) - beta_(i-1,i+alpha-1).
    std::int64_t difference = 0;
    for (int j = 0; j <= top; ++j) {
      const int k = i + alpha - 1 - j;
      const std::int64_t product = binomial(n, k) * h[j];
      difference += (k - i) % 2 == 0 ? product : -product;
    }
    if (difference > 0) B.set(i, alpha - 1, difference);
    if (difference < 0) B.set(i - 1, alpha, -difference);
  }
  // The last module stands on no diagonal with i <= n.
  if (!is_full) B.set(n, top, h[top]);
  return B;
}

}  // namespace

betti_table expected_betti(int n, int s) {
  const int m = std::clamp(s - 1, 1, n);
  return over_more_variables(expected_of_spanning_points(m, s), n - m);
}

}  // namespace zep::points
