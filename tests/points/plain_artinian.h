// SPDX-License-Identifier: GPL-3.0-or-later
// The Artinian reduction R/(X_0), found the long way.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "tests/points/point_sets.h"

namespace zep::tests {

// A form as its terms, in any order.
using plain_form = std::vector<std::pair<exponents, int>>;

inline plain_form plain_form_of(const polynomial& f) {
  plain_form terms;
  for (int i = 0; i < f.no_of_monoms(); ++i) {
    terms.emplace_back(exponents_of(f.term(i)), f.coef(i).value());
  }
  return terms;
}

inline exponents times_variable(exponents e, int v) {
  ++e[v];
  return e;
}

inline plain_form times_variable(plain_form f, int v) {
  for (auto& [e, c] : f) ++e[v];
  return f;
}

inline int degree_of(const exponents& e) {
  int degree = 0;
  for (const int x : e) degree += x;
  return degree;
}

// The degree of a form that is not empty.
inline int degree_of(const plain_form& f) { return degree_of(f[0].first); }

inline bool is_zero(const std::vector<int>& row) {
  return std::all_of(row.begin(), row.end(), [](int x) { return x == 0; });
}

// A form of degree d is zero in R/(X_0) exactly when a polynomial of smaller degree has the same
// values at the points.
class plain_artinian {
 public:
  explicit plain_artinian(const std::vector<coordinates>& points)
      : facts_(points), points_(points) {
    plain_echelon values;
    for (int d = 0; d <= top_degree() + 1; ++d) {
      smaller_degree_.push_back(values);
      for (const exponents& e : members(d)) values.add(values_of({{e, 1}}));
    }
  }

  int top_degree() const { return static_cast<int>(facts_.hilbert.size()) - 1; }

  // The members of the order ideal of degree d, ascending.
  std::vector<exponents> members(int d) const {
    std::vector<exponents> found;
    for (const exponents& e : facts_.order_ideal) {
      if (degree_of(e) == d) found.push_back(e);
    }
    return found;
  }

  // Something linear in the forms of degree d that is 0 exactly when the form is zero in R/(X_0).
  std::vector<int> residue(const plain_form& f, int d) const {
    return smaller_degree_[std::min<std::size_t>(d, smaller_degree_.size() - 1)].reduced(
        values_of(f));
  }

  // The same for all products with a variable, one behind the other: 0 exactly when the form, of
  // degree d, is in the socle.
  std::vector<int> residue_of_products(const plain_form& f, int d) const {
    std::vector<int> all;
    for (int v = 0; v < dim; ++v) {
      const std::vector<int> one = residue(times_variable(f, v), d + 1);
      all.insert(all.end(), one.begin(), one.end());
    }
    return all;
  }

  // The dimension of the socle in degree d.
  int socle_dimension(int d) const {
    plain_echelon products;
    const std::vector<exponents> basis = members(d);
    for (const exponents& e : basis) products.add(residue_of_products({{e, 1}}, d));
    return static_cast<int>(basis.size()) - products.rank();
  }

  int type() const {
    int sum = 0;
    for (int d = 0; d <= top_degree(); ++d) sum += socle_dimension(d);
    return sum;
  }

  const plain_facts& facts() const { return facts_; }

 private:
  std::vector<int> values_of(const plain_form& f) const {
    std::vector<int> values;
    for (const coordinates& point : points_) {
      int value = 0;
      for (const auto& [e, c] : f) value += c * value_at(e, point);
      values.push_back(value % Fp8::prime);
    }
    return values;
  }

  plain_facts facts_;
  std::vector<coordinates> points_;
  // The values at the points of polynomials of degree below d.
  std::vector<plain_echelon> smaller_degree_;
};

}  // namespace zep::tests
