// SPDX-License-Identifier: GPL-3.0-or-later
// Multiplication in the coordinate ring and in its Artinian reduction.
#pragma once

#include <vector>

#include "arith/Fp8.h"
#include "points/ring/order_ideal.h"

namespace zep::points {

// The homogeneous coordinate ring R, or its Artinian reduction R/(X_0).
enum class quotient { R, artinian };

// Such a ring in the basis O, as a K[X_0]-module or as a vector space: the product of a member of O
// with a variable is another member, or a border monomial, which has a canonical form: it is
// congruent, modulo the Groebner basis or its leading forms, to a combination of members of O.
// Everything is homogeneous, so the degrees fix the exponents of X_0, and an element of degree d is
// a row over the members of degree d in R/(X_0), over those of degree at most d in R:
//
//     row[i]  is the coefficient of  O[first(d) + i],   first(d) + i < begin(d + 1)
//
// Monomials 1 that only fill O up behind the true ones (repeated points) take no part.
class canonical_forms {
 public:
  // Keeps nothing of X.
  canonical_forms(quotient ring, const order_ideal& X);

  // The largest degree with members in O; -1 without points.
  int top_degree() const { return static_cast<int>(begin_.size()) - 2; }

  // First position in O of degree d, and the number of members of degree d. Any d.
  int begin(int d) const;
  int dimension(int d) const { return begin(d + 1) - begin(d); }

  // Number of members, the filling not counted.
  int no_of_members() const { return begin_.back(); }

  // Where the rows of degree d start.
  int first(int d) const { return ring_ == quotient::R ? 0 : begin(d); }

  // A product O[i] * x_v: a member of O at `position`, or the border monomial at `position`.
  struct product {
    bool in_O;
    int position;
  };
  product times(int i, int v) const { return table_[i * dim_ + v]; }

  int no_of_border() const { return static_cast<int>(forms_.size()); }

  // The canonical form of border monomial b, a row of its degree.
  const_row_view form(int b) const { return forms_[b]; }

  // The border monomial that border monomial b was reached from, times which variable; `border` is
  // -1 for one that leads a Groebner basis element and was reached from nothing.
  struct origin {
    int border;
    int variable;
  };
  origin origin_of(int b) const { return origins_[b]; }

  // Calls use(coefficient, product) for every term of x_v * f, f a row of degree d.
  template <class Use>
  void for_each_product(const_row_view f, int d, int v, Use use) const {
    for (std::size_t i = 0; i < f.size(); ++i) {
      if (f[i] != 0) use(f[i], times(first(d) + static_cast<int>(i), v));
    }
  }

  // Adds x_v * f, for a row f of degree d, to `sum`, a row of degree d + 1.
  void add_product(row_view sum, const_row_view f, int d, int v) const;

 private:
  void set_degrees(const std::vector<monom>& O);
  void set_table(const order_ideal& X);
  void add_form(const order_ideal& X, const monom& t);

  quotient ring_;
  int dim_;
  // begin_[d], with one entry behind the top degree that ends it.
  std::vector<int> begin_;
  std::vector<product> table_;
  std::vector<row> forms_;
  std::vector<origin> origins_;
};

}  // namespace zep::points
