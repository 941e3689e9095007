// SPDX-License-Identifier: GPL-3.0-or-later
// Levels of a linear strand by coordinates.
//
// Let T be the linear syzygies of the vectors G_j of a level, as elements of V (x) L with
// coordinates (v, j) over x_v G_j. The reduction of pairs, one after the other, has an outcome that
// can be told without it. Of all multiples x_v G_j with one first term the one of smallest j
// reduces; so the others stand for the pairs (j, v) that they make with it, and an element of T is
// known by its coordinates there. A pair leaves nothing if T has an element whose last pair that is
// not 0 is this one, and its syzygy is the row of the reduced echelon form of T, from the last pair
// on, with this pivot. Pairs of two others of the same first term are differences of such pairs:
// they leave nothing, and their syzygies are combinations of earlier ones.
#pragma once

#include <vector>

#include "linalg/row_space.h"
#include "points/strand/linear_syzygies.h"
#include "points/strand/syzygy_spaces.h"

namespace zep::points {

// The vectors of a level.
struct strand_level {
  // The first term of each; position -1 for a zero vector.
  std::vector<first_term> first_terms;
  // For each that is not zero, the coordinate that belongs to it, as a functional on the space of
  // the level.
  std::vector<row> coordinates;
};

// The indices in the list of the vectors that are not zero.
std::vector<int> nonzero_vectors(const std::vector<first_term>& first_terms);

// The coordinates x_v G_j of T, for variables v and vectors j that are not zero, by their numbers
// among these, as functionals on the next space.
struct multiple {
  int variable;
  int vector;
};
std::vector<row> coordinates_of(const syzygy_spaces& L, const std::vector<row>& coordinates,
                                const std::vector<multiple>& multiples);

// What becomes of a pair: something is left; a syzygy; a combination of earlier ones.
enum class pair_outcome { leftover, syzygy, repetition };

// The syzygies of a level, without their coordinates.
class level_syzygies {
 public:
  // L is at the level of G, which has coordinates unless the next space is 0. The pairs are those
  // of G, i ascending, then j.
  level_syzygies(const syzygy_spaces& L, const strand_level& G,
                 const std::vector<linear_pair>& pairs);

  const std::vector<pair_outcome>& outcomes() const { return outcomes_; }

  // The first terms of the syzygies, one after the other, when they have been made triangular as
  // form_vectors::interreduce does it.
  const std::vector<first_term>& first_terms() const { return first_terms_; }

  // The coordinates of the next space that belong to the triangular vectors.
  std::vector<row> coordinates() const;

 private:
  void decide(const syzygy_spaces& L, const strand_level& G, const std::vector<linear_pair>& pairs);

  // A first term of a vector, and the coordinate of T there.
  struct start {
    first_term term;
    row coordinate;
  };
  static std::vector<start> starts(const syzygy_spaces& L, const strand_level& G);
  void triangulate(std::vector<start> starts);

  std::vector<pair_outcome> outcomes_;
  std::vector<first_term> first_terms_;
  // The coordinates of T at the pairs with a syzygy, and triangular combinations of these.
  std::vector<row> at_pairs_;
  row_space triangular_;
};

}  // namespace zep::points
