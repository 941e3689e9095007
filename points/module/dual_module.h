// SPDX-License-Identifier: GPL-3.0-or-later
// The canonical module as a module over K[X_0], and multiplication in it.
#pragma once

#include <cstddef>
#include <span>
#include <unordered_map>
#include <vector>

#include "arith/monom.h"
#include "linalg/matrix.h"
#include "points/ring/canonical_forms.h"

namespace zep::points {

// The dual of R over K[X_0] with the candidate projections as generators.
//
//     member i        w * pr_(t_a), where t_a is the last candidate that O[i] divides, w = t_a /
//     O[i] border          the products of members with variables that are not members again
//
// Member i is pr_O[i] plus multiples of projections behind it, so the members are a K[X_0]-basis as
// the projections are, and each of the two is expressed by the other without a division. The degree
// of an element is that of O[i] for member i; multiplication with a form lowers it.
//
// An element w * pr_(t_a) has the exponent t_a / w, with negative entries perhaps. It is greater
// when its exponent is smaller, of equal exponents when a is smaller. In this term order the
// canonical form of a border element, its expression by members, consists of smaller elements.
//
// Elements of degree d are rows, over projections or members, whose entry i stands with
// X_0^(deg O[i] - d); entries of members of smaller degree are 0.
class dual_module {
 public:
  // From O, multiplication in R, and the positions of the candidates. O and R must outlive it.
  dual_module(const std::vector<monom>& O, const canonical_forms& R, std::vector<int> candidates);

  int no_of_members() const { return R_.no_of_members(); }

  // The largest degree; -1 without members.
  int top_degree() const { return R_.top_degree(); }

  // First member of degree d, and the number of members of degree d. Any d.
  int begin(int d) const { return R_.begin(d); }
  int dimension(int d) const { return R_.dimension(d); }

  int degree_of_member(int i) const { return O_[i].tot_deg(); }

  // Member i is factor(i) times the projection of candidate owner(i), an index of the candidates.
  int owner(int i) const { return owner_[i]; }
  monom factor(int i) const;

  int no_of_candidates() const { return static_cast<int>(candidates_.size()); }

  // Position of candidate a in O.
  int candidate(int a) const { return candidates_[a]; }

  // The product of member i with x_v: the member or the border element at `position`.
  struct product {
    bool is_member;
    int position;
  };
  product times(int i, int v) const { return products_[i * dim_ + v]; }

  // The border, in rising term order. The element is x_variable * member.
  struct border_element {
    monom exponent;
    int owner = 0;
    int member = 0;
    int variable = 0;
  };
  int no_of_border() const { return static_cast<int>(border_.size()); }
  const border_element& border(int b) const { return border_[b]; }
  int degree(int b) const { return border(b).exponent.tot_deg(); }

  // The border element with this exponent and owner, or -1.
  int find(const monom& exponent, int owner) const;

  // The canonical forms of border elements of degree d, a row for each over the members from
  // begin(d) up to, but not including, `end`; with end = begin(d + 1) they are the forms modulo
  // X_0.
  matrix canonical_forms_of(const std::vector<int>& elements, int d, int end) const;

 private:
  struct key {
    monom exponent;
    int owner = 0;
  };
  struct key_hash {
    std::size_t operator()(const key& k) const;
  };
  struct key_equal {
    bool operator()(const key& a, const key& b) const;
  };

  void set_owners();
  void set_products();
  void set_border();
  void set_places();
  void set_row(int i);
  matrix transposed_forms() const;
  void extend(int d, const matrix& forms);
  row_view values_at_border(int i) { return rows_[i].subspan(no_of_members()); }
  void multiply(row_view to, int i, int v, int first, int end) const;
  void from_projections_to_members(matrix& elements, int first, int end) const;
  void replace(matrix& elements, int first, std::span<const int> members, int behind) const;

  const std::vector<monom>& O_;
  const canonical_forms& R_;
  std::vector<int> candidates_;
  int dim_;
  std::vector<int> owner_;
  std::vector<product> products_;
  // place_[v][j] is the column of rows_ with the values at x_v * O[j].
  std::vector<std::vector<int>> place_;
  // Row i is member i as a functional: its values at the members of O, which are its coordinates
  // over the projections, then those at the border monomials of O.
  matrix rows_;
  std::vector<border_element> border_;
  std::unordered_map<key, int, key_hash, key_equal> border_index_;
};

}  // namespace zep::points
