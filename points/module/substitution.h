// SPDX-License-Identifier: GPL-3.0-or-later
// Candidates replaced by what they are, in many elements at a time.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "linalg/matrix.h"
#include "points/module/module_monomials.h"

namespace zep::points {

// What eliminated candidates are, by candidates that remain. Elements of one degree d are rows over
// module monomials, a component for each candidate; those of candidates of one degree come at once.
class expressions {
 public:
  // For candidates of these degrees, 0 or larger; none is eliminated.
  explicit expressions(std::vector<int> degrees);

  // Candidate of_candidates[i] is row i of coefs, over the given monomials. Once for a degree; none
  // of the components may be eliminated, then or later.
  void add(int degree, const std::vector<int>& of_candidates,
           std::vector<module_monomial> monomials, matrix coefs);

  bool is_eliminated(int candidate) const { return row_[candidate] >= 0; }
  int degree(int candidate) const { return degrees_[candidate]; }

  // The monomials of the expressions of candidates of degree d.
  const std::vector<module_monomial>& monomials(int d) const { return of_degree_[d].monomials; }
  // What an eliminated candidate is, over the monomials of its degree.
  const_row_view operator[](int candidate) const {
    return of_degree_[degrees_[candidate]].coefs[row_[candidate]];
  }

 private:
  struct block {
    std::vector<module_monomial> monomials;
    matrix coefs{0, 0};
  };

  std::vector<int> degrees_;
  // Its row among the expressions of its degree, or -1.
  std::vector<int> row_;
  std::vector<block> of_degree_;
};

// The map from elements over given module monomials of one degree, `from`, to the same elements
// over others, `monomials`, in the components of which no candidate is eliminated.
class substitution {
 public:
  // Monomials are projective. A component -1 says that a monomial does not occur. `known` must
  // outlive this, and stay as it is.
  substitution(const std::vector<module_monomial>& from, const expressions& known);

  const std::vector<module_monomial>& monomials() const { return monomials_; }

  // Adds to row r of sums, over `monomials`, what row r of coefs is, over the first coefs.cols() of
  // `from`. Monomials that do not occur may have any coefficients.
  void add(matrix& sums, const matrix& coefs) const;

  // Adds from[k] to a row over `monomials`.
  void add_monomial(row_view sum, int k) const;

 private:
  // The multiples of candidates of one degree by one factor.
  struct multiples {
    int degree;
    // The positions in `monomials` of the products of the factor with the monomials of expressions.
    std::vector<int> position;
    // The monomials of `from` that are such multiples, ascending, by their numbers, and their
    // candidates.
    std::vector<int> number;
    std::vector<int> candidate;
  };
  struct place {
    // Where a monomial goes itself, or else the multiples that it belongs to and its place there.
    int position = -1;
    int group = -1;
    int member = -1;
  };

  void add_products(matrix& sums, const matrix& coefs, const multiples& group) const;

  const expressions& known_;
  std::vector<module_monomial> monomials_;
  std::vector<place> places_;
  std::vector<multiples> groups_;
};

}  // namespace zep::points
