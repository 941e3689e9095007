// The record of one point set and of everything computed for it.
#pragma once

#include <array>
#include <iosfwd>
#include <optional>
#include <vector>

#include "linalg/matrix.h"
#include "points/ring/canonical_forms.h"
#include "points/ring/groebner_basis.h"
#include "points/ring/ideal.h"

namespace zep::points {

// A set X of s points of P^n over F_p, and results. A point (1 : x_1 : ... : x_n) is kept by its
// affine coordinates. Results are absent at first; the first computation that needs one makes it,
// stores it when it has succeeded, and it is never made again. The points are taken to be distinct;
// with repeated points all results are meaningless, but nothing breaks.
struct scheme {
  // A scheme of ss points (none for a negative number), all coordinates 0, in the ring in force.
  explicit scheme(int ss);

  // Number of points.
  int s;
  // s rows of `dim` affine coordinates, in input order.
  matrix P;

  // Made by `bu_mo`, marked by `has_bu_mo`.

  // True once bu_mo has run. (delta >= 1 says the same, but for a scheme without points.)
  bool has_bu_mo = false;
  // The order ideal: s standard monomials, ascending. Repeated points leave monomials 1 at its end.
  std::vector<monom> O;
  monom_index O_index;
  // The border of O, ascending.
  std::vector<monom> B;
  monom_index B_index;
  // The reduced Groebner basis of the vanishing ideal I(X).
  std::optional<groebner_basis> Ix;
  // Row i holds, over O, the separator of point i: 1 at point i, 0 at the other points. Repeated
  // points leave rows of zeros.
  matrix separator;
  // H(n) and delta H(n) for n = 0 .. s-1.
  std::vector<int> hilb_fct;
  std::vector<int> delta_fct;
  // The largest degree in O less one; delta H at the largest degree; the initial degree of I(X).
  int sigma = 0;
  int delta = 0;
  int alpha = 0;

  // Made by `sep`.

  // 1 once somebody has asked for the separators; only then are the two properties decided by them.
  int sep = 0;
  // 1 if X has the Cayley-Bacharach property, is arithmetically Gorenstein. The socle can tell too.
  int is_CB = 0;
  int is_ar_Go = 0;

  // Made by `beta_matrix`.

  // Entry (i, l) is the coefficient of the leading form of separator basis[l] in that of separator
  // i: s rows, delta columns.
  std::optional<matrix> beta_matrix;
  std::vector<int> basis;

  // Made by `need_Can_Lf`, `min_Ix` and `socle`.

  // Multiplication in the Artinian reduction.
  std::optional<canonical_forms> Can_Lf;
  // Minimal generators of the homogeneous vanishing ideal, ascending by degree.
  std::optional<ideal> min_Ix;
  // Generators of the socle of the Artinian reduction, ascending.
  std::optional<ideal> socle;

  // Made by `omega`: a minimal presentation of the canonical module.

  // The positions in O of the monomials of its generators, projections, ascending.
  std::vector<int> pr;
  // Number of generators whose monomial has degree d, for d = 0 .. sigma + 1.
  std::vector<int> pr_deg;
  // The relations: A_d[i * A_d_cols + j] is the entry of relation j at generator i, homogeneous in
  // projective monomials. Ascending by degree, that of the entry plus what the degree of the
  // monomial of its generator lacks to the largest.
  int A_d_cols = 0;
  std::vector<polynomial> A_d;
  // The largest degree of a relation; number of relations of degree e, for e = 0 .. A_d_maxdeg.
  int A_d_maxdeg = 0;
  std::vector<int> A_d_coldeg;

  // Made by `linid` and `linom`: numbers in linear strands, marked by these.

  // Row 0 for I_X, from its first entry on; row 1 for w_R, from its last entry back; one entry for
  // each affine variable. Until they are computed, and where nothing is left, 0.
  std::array<std::vector<int>, 2> linres;
  // 1 once they have been computed.
  int linid = 0;
  int linom = 0;
};

// Number of border monomials.
inline int no_of_border(const scheme& X) { return static_cast<int>(X.B.size()); }

// The entry of relation j at generator i of the canonical module.
inline const polynomial& entry_of_A_d(const scheme& X, int i, int j) {
  return X.A_d[static_cast<std::size_t>(i) * X.A_d_cols + j];
}

// Number of generators of the canonical module. 0 before `omega`, and without points.
inline int no_of_pr(const scheme& X) { return static_cast<int>(X.pr.size()); }

// The Groebner basis element g, 0 <= g < Ix->no_of_gens(). Requires bu_mo.
polynomial groebner_element(const scheme& X, int g);

// The separator of point i, 0 <= i < s, and its degree. Require bu_mo.
polynomial separator_of(const scheme& X, int i);
int separator_degree(const scheme& X, int i);

// Positions by monomial, -1 for one that is not there. Require bu_mo.
// In O: of any degree; and with a short cut by degree (the monomial 1 is always at 0).
int is_el_OO(const scheme& X, const monom& t);
int is_el_O(const scheme& X, const monom& t);
// Among the leading monomials of the Groebner basis, and in the border.
int is_el_G(const scheme& X, const monom& t);
int is_el_B(const scheme& X, const monom& t);

// Reads s times `dim` coordinates, point by point.
std::istream& operator>>(std::istream& in, scheme& X);

// Prints one point, row i of P, as <1:2:0>.
void disp_point(std::ostream& out, const matrix& P, int i);

// Prints the points, with nothing between them.
void disp_scheme(std::ostream& out, const scheme& X);

}  // namespace zep::points
