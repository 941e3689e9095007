// SPDX-License-Identifier: GPL-3.0-or-later
// One step of a linear strand.
#pragma once

#include "base/reporter.h"
#include "points/strand/form_vectors.h"

namespace zep::points {

// Two vectors with a first term at the same position, i < j, and the variables, as numbers, whose
// multiples of them have the same first term: times_i * G_i and times_j * G_j.
struct linear_pair {
  int i;
  int j;
  int times_i;
  int times_j;
};

// The pairs among polynomials, vectors of rank 1, whose leading monomials have a least common
// multiple one degree higher; i ascending, then j.
std::vector<linear_pair> pairs_of_generators(const form_vectors& G);

// The first term of a vector of linear forms: variable, as a number, and position; position -1 for
// a zero vector.
struct first_term {
  int variable;
  int position;
};

// The first terms of vectors of linear forms.
std::vector<first_term> first_terms_of(const form_vectors& G);

// The pairs among triangular vectors of linear forms, given by their first terms: all with the same
// position, i ascending, then j. The common multiple is the product of the leading variables.
std::vector<linear_pair> pairs_of_linear_vectors(const std::vector<first_term>& G);

// The linear syzygies that come from the pairs, one vector of length G.count() for each pair: the
// difference times_j * G_j - times_i * G_i is reduced by products of variables with vectors of G
// and by what other pairs have left, and the vector says how zero came of it; it is zero if
// something was left. Tells a countdown, and marks each difference that leaves something. The
// vectors of G have first terms with coefficient 1, no two the same.
//
// The reduction takes the terms from the first on: by what an earlier pair has left there, or else
// by the first vector of G whose first term divides the term.
form_vectors linear_syzygies(const form_vectors& G, const std::vector<linear_pair>& pairs,
                             reporter& to);

}  // namespace zep::points
