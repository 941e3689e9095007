// SPDX-License-Identifier: GPL-3.0-or-later
// Point sets for tests, and plain mathematics on them that shares no code with the computations.
#pragma once

#include <algorithm>
#include <cstddef>
#include <map>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "arith/Fp8.h"
#include "arith/ordering.h"
#include "arith/polynomial.h"
#include "arith/ring.h"
#include "points/record/scheme.h"
#include "points/walk/buchberger_moeller.h"
#include "tests/plain_echelon.h"
#include "tests/ring_in_force.h"
#include "tests/told.h"

namespace zep::tests {

// The separator line.
inline const std::string line = std::string(79, '-') + "\n";

using coordinates = std::vector<int>;
using exponents = std::vector<int>;

// Elements of the field in force, by integers of either sign.
inline row row_of(const std::vector<int>& values) {
  row elements;
  for (const int value : values) {
    elements.emplace_back((value % Fp8::prime + Fp8::prime) % Fp8::prime);
  }
  return elements;
}

// The elements that a view looks at.
inline row elements_of(const_row_view view) { return {view.begin(), view.end()}; }

// The points as rows of the space in force.
inline matrix rows_of(const std::vector<coordinates>& points) {
  matrix P(dim, static_cast<int>(points.size()));
  for (int i = 0; i < P.rows(); ++i) {
    for (int j = 0; j < dim; ++j) P[i][j] = points[i][j];
  }
  return P;
}

// What the walk over the monomials finds.
inline points::order_ideal walked(const std::vector<coordinates>& points) {
  return bu_mo(rows_of(points), nobody());
}

// A set that remembers, and on which nothing has been computed.
inline scheme make_set(const std::vector<coordinates>& points, reporter& to = nobody()) {
  return {rows_of(points), to};
}

// At most s distinct random points; fewer when the space has fewer.
inline std::vector<coordinates> random_points(int s, std::mt19937& random) {
  std::set<coordinates> seen;
  std::vector<coordinates> points;
  for (int tries = 0; tries < 50 * s && static_cast<int>(points.size()) < s; ++tries) {
    coordinates point;
    for (int j = 0; j < dim; ++j) {
      point.push_back(static_cast<int>(random() % static_cast<unsigned>(Fp8::prime)));
    }
    if (seen.insert(point).second) points.push_back(point);
  }
  return points;
}

inline exponents exponents_of(const monom& m) {
  exponents e;
  for (int j = 0; j < proj - 1; ++j) e.push_back(m.exp(j));
  return e;
}

inline monom monomial(const exponents& e) {
  monom m;
  for (int j = 0; j < static_cast<int>(e.size()); ++j) m.set_exp(j, e[j]);
  return m;
}

inline bool divides(const exponents& a, const exponents& b) {
  return std::equal(a.begin(), a.end(), b.begin(), [](int x, int y) { return x <= y; });
}

inline int value_at(const exponents& e, const coordinates& point) {
  int value = 1;
  for (std::size_t j = 0; j < e.size(); ++j) {
    for (int k = 0; k < e[j]; ++k) value = value * point[j] % Fp8::prime;
  }
  return value;
}

inline int value_at(const polynomial& f, const coordinates& point) {
  int value = 0;
  for (int i = 0; i < f.no_of_monoms(); ++i) {
    value += f.coef(i).value() * value_at(exponents_of(f.term(i)), point);
  }
  return value % Fp8::prime;
}

// All affine monomials of degree d, ascending in the order in force.
inline std::vector<exponents> monomials_of_degree(int d) {
  std::vector<exponents> found;
  exponents e(dim, 0);
  const auto fill = [&](const auto& self, int j, int left) -> void {
    if (j == dim - 1) {
      e[j] = left;
      found.push_back(e);
      return;
    }
    for (int k = 0; k <= left; ++k) {
      e[j] = k;
      self(self, j + 1, left - k);
    }
  };
  fill(fill, 0, d);
  std::sort(found.begin(), found.end(), [](const exponents& a, const exponents& b) {
    return monom_ordering_lt(monomial(a), monomial(b));
  });
  return found;
}

// What is true of a set of points, found the long way: the order ideal as the monomials, degree by
// degree in ascending order, whose values at the points are independent of those before.
struct plain_facts {
  explicit plain_facts(const std::vector<coordinates>& points) {
    plain_echelon values;
    hilbert.push_back(0);
    for (int d = 0; hilbert.back() < static_cast<int>(points.size()); ++d) {
      for (const exponents& e : monomials_of_degree(d)) {
        std::vector<int> row;
        for (const coordinates& point : points) row.push_back(value_at(e, point));
        if (values.add(row)) order_ideal.push_back(e);
      }
      hilbert.push_back(values.rank());
    }
    hilbert.erase(hilbert.begin());
  }

  std::vector<exponents> order_ideal;
  // H(0), H(1), ... up to the first value s.
  std::vector<int> hilbert;
};

}  // namespace zep::tests
