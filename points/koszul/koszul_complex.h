// SPDX-License-Identifier: GPL-3.0-or-later
// The Koszul complex of the Artinian reduction, made smaller by a matching.
//
// Let A = R/(X_0) with its basis O, and V the span of the variables in O. The homology of
//
//     ... -> Lambda^i V (x) A_j -> Lambda^(i-1) V (x) A_(j+1) -> ...
//
// is Tor of A over the polynomial ring in these variables. A cell is e_T (x) m with T a set of
// variables and m in O; its boundary is the sum of (-1)^k e_(T - v) (x) x_v m over the elements v
// of T, v the k-th of them. Where x_v m is a member, that is a cell with coefficient 1 or -1; by
// such entries most cells cancel.
//
// Let w be the greatest variable (in numbers, the smallest in the term order) in T or m. The cell
// is
//
//     a target   if w is not in T:                      of the source (T + w, m / x_w),
//     a source   if w is in T and x_w m is a member:    of the target (T - w, x_w m),
//     critical   otherwise.
//
// The critical cells alone make a complex with the same homology (the matching is within a
// multidegree x^T m, and all that boundaries hold besides has smaller ones, so it is acyclic:
// Joellenbeck, Welker: Minimal resolutions via algebraic discrete Morse theory, chapter 2). There
// are as many critical cells as the resolution of Eliahou and Kervaire has generators when the
// leading ideal is stable.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "points/koszul/subsets.h"
#include "points/ring/canonical_forms.h"

namespace zep::points {

// The sign of e_(T - v) in the boundary of e_T, for an element v of T.
inline Fp8 sign_without(subset T, int v) { return no_of_smaller(T, v) % 2 == 0 ? Fp8(1) : -Fp8(1); }

// Chains of bidegree (i, j), elements of Lambda^i V (x) A_j, are rows
//
//     row[k * dimension(j) + m]   is the coefficient of e_T (x) O[begin(j) + m],   T =
//     subsets(i)[k]
//
// and a place in such a row stands for its cell.
class koszul_complex {
 public:
  // A, an Artinian reduction of a set with points, must outlive it.
  explicit koszul_complex(const canonical_forms& A);

  // Number of variables in O.
  int dim_V() const { return static_cast<int>(variables_.size()); }

  int top_degree() const { return A_.top_degree(); }

  // Length of the chains of bidegree (i, j). Any i and j.
  std::size_t width(int i, int j) const;

  struct cell {
    subset T;
    // A position in O.
    int m;

    bool operator==(const cell&) const = default;
  };

  // The number of critical cells of bidegree (i, j), and the cells, in the order of their places.
  // Any i and j; the cells only where the width fits memory.
  std::int64_t no_of_critical(int i, int j) const;
  std::vector<cell> critical_cells(int i, int j) const;

  enum class kind { critical, source, target };
  kind kind_of(const cell& c) const;
  std::size_t place(const cell& c) const;
  std::vector<std::size_t> places(const std::vector<cell>& cells) const;

  // The source of a target.
  cell source_of(const cell& target) const;

  // The cell of bidegree (1, j) with product t, a border monomial, and the greatest variable of t.
  // Critical if t leads an element of the reduced Groebner basis.
  cell cell_of_product(const monom& t) const;

  // The members of degree j, as positions in O. Any j.
  std::vector<int> members(int j) const;

  // The product of O[m] with variable v of V.
  canonical_forms::product times(int m, int v) const { return A_.times(m, variables_[v]); }

  // Adds c times the boundary of the cell to a chain.
  void add_boundary(row_view chain, const cell& of, Fp8 c) const;

  // Changes a chain of bidegree (i, j) by boundaries of sources until it is 0 at all targets. Calls
  // use(place of the target, source, c) when c times the boundary of the source is added. What is
  // then at the critical cells is the chain in the small complex.
  using step = std::function<void(std::size_t target, const cell& source, Fp8 c)>;
  void clear_targets(row_view chain, int i, int j, const step& use) const;
  void clear_targets(row_view chain, int i, int j) const;

  // The boundary of a critical cell in the small complex, in all of a chain: to be read at the
  // critical cells only. Calls use as `clear_targets` does.
  row small_boundary(const cell& c, const step& use) const;
  row small_boundary(const cell& c) const;

 private:
  int over(int m, int v) const { return quotients_[static_cast<std::size_t>(m) * dim_V() + v]; }
  void add_products(row_view chain, subset T, int m, int degree, Fp8 c, subset left_out) const;

  const canonical_forms& A_;
  std::vector<int> variables_;
  // O[m] / x_v as a position in O, -1 where that is no monomial.
  std::vector<int> quotients_;
  // The greatest variable in O[m], -1 for 1; the degree of O[m].
  std::vector<int> greatest_;
  std::vector<int> degree_;
  // By degree and variable: the members of the degree that have it as their greatest one.
  std::vector<std::vector<std::vector<int>>> by_greatest_;
};

}  // namespace zep::points
