// SPDX-License-Identifier: GPL-3.0-or-later
// Order ideals that have been written down: the program has computed nothing of them.
#pragma once

#include <algorithm>
#include <vector>

#include "points/ring/order_ideal.h"
#include "tests/points/point_sets.h"

namespace zep::tests {

// What an order ideal is made of.
struct order_ideal_parts {
  std::vector<exponents> O;
  std::vector<exponents> B;
  std::vector<exponents> leads;
  std::vector<row> tails;
  std::vector<row> separators;
};

inline std::vector<monom> monomials(const std::vector<exponents>& list) {
  std::vector<monom> result;
  for (const exponents& e : list) result.push_back(monomial(e));
  return result;
}

inline points::order_ideal put_together(const order_ideal_parts& X) {
  const std::size_t columns = X.separators.empty() ? 0 : X.separators.front().size();
  matrix separators(static_cast<int>(columns), static_cast<int>(X.separators.size()));
  for (int i = 0; i < separators.rows(); ++i) {
    std::copy(X.separators[i].begin(), X.separators[i].end(), separators[i].begin());
  }
  return {monomials(X.O), monomials(X.B), groebner_basis(monomials(X.leads), X.tails), separators};
}

// Three points of the plane that are not on a line. A polynomial c + by + ax has at them the values
// c, c + 2b + a and c + b + 2a. Both orders agree on the monomials.
inline const std::vector<coordinates> triangle_by_hand_points = {{0, 0}, {1, 2}, {2, 1}};

inline order_ideal_parts triangle_by_hand() {
  const Fp8 zero(0);
  const Fp8 one(1);
  const Fp8 third = one / Fp8(3);
  const Fp8 two = Fp8(2) * third;
  const Fp8 seven = Fp8(7) * third;
  return {.O = {{0, 0}, {0, 1}, {1, 0}},
          .B = {{0, 2}, {1, 1}, {2, 0}},
          .leads = {{0, 2}, {1, 1}, {2, 0}},
          // y^2 = (7y - 2x) / 3, xy = (2y + 2x) / 3, x^2 = (7x - 2y) / 3.
          .tails = {{zero, -seven, two}, {zero, -two, -two}, {zero, two, -seven}},
          .separators = {{one, -third, -third}, {zero, two, -third}, {zero, -third, two}}};
}

// Three points of the line x = 2y, with y = 0, 1, 2. In the degree-reverse-lexicographic order.
inline const std::vector<coordinates> line_by_hand_points = {{0, 0}, {2, 1}, {4, 2}};

inline order_ideal_parts line_by_hand() {
  const Fp8 half = Fp8(1) / Fp8(2);
  const Fp8 zero(0);
  return {.O = {{0, 0}, {0, 1}, {0, 2}},
          .B = {{1, 0}, {1, 1}, {0, 3}, {1, 2}},
          .leads = {{1, 0}, {0, 3}},
          // x - 2y and y (y - 1) (y - 2).
          .tails = {row_of({0, -2}), row_of({0, 2, -3})},
          .separators = {{Fp8(1), -Fp8(3) * half, half}, row_of({0, 2, -1}), {zero, -half, half}}};
}

}  // namespace zep::tests
