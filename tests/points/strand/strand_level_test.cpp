// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/strand_level.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "linalg/row_operations.h"
#include "points/strand/level_vectors.h"
#include "tests/points/strand_sets.h"

namespace zep::tests {
namespace {

// The generators of degree alpha, with all that a level needs.
struct first_level {
  explicit first_level(const strand_starts& start)
      : K(start.A), L(K, start.X.H.alpha), generators(least_ones(start)) {
    for (int j = 0; j < generators.count(); ++j) {
      row& unit = G.coordinates.emplace_back(static_cast<std::size_t>(L.here().dimension()));
      const koszul_complex::cell cell = K.cell_of_product(generators.leading_monomial(j));
      unit[L.here().coordinate(K.place(cell))] = 1;
      G.first_terms.push_back({0, 0});
    }
  }

  static form_vectors least_ones(const strand_starts& start) {
    std::vector<std::vector<polynomial>> least;
    for (const polynomial& f : start.min_Ix.gen) {
      if (f.term(0).tot_deg() == start.X.H.alpha) least.push_back({f});
    }
    return vectors_of(least, 1);
  }

  koszul_complex K;
  spaces_of_ideal L;
  form_vectors generators;
  strand_level G;
};

// The outcomes as the reduction, pair by pair, has them.
std::string marks_of(const form_vectors& G, const std::vector<linear_pair>& pairs) {
  told reporter;
  linear_syzygies(G, pairs, reporter);
  return reporter.out;
}

TEST(StrandLevel, HasTheOutcomesOfTheReductionOfPairs) {
  int with_repetitions = 0;
  for_each_special_or_random_set([&](const std::vector<coordinates>& points) {
    const strand_starts start(points);
    if (start.X.H.alpha < 2) return;
    first_level first(start);
    const std::vector<linear_pair> pairs = pairs_of_generators(first.generators);
    const level_syzygies found(first.L, first.G, pairs);
    const auto number = [&](pair_outcome outcome) {
      return std::count(found.outcomes().begin(), found.outcomes().end(), outcome);
    };
    ASSERT_EQ(std::ssize(found.outcomes()), std::ssize(pairs));
    ASSERT_EQ(number(pair_outcome::syzygy), first.L.next().dimension());
    ASSERT_EQ(std::ssize(marks_of(first.generators, pairs)), number(pair_outcome::leftover));
    if (number(pair_outcome::repetition) > 0) ++with_repetitions;
    form_vectors vectors = linear_syzygies(first.generators, pairs, nobody());
    vectors.interreduce();
    vectors.drop_zero_vectors();
    const std::vector<first_term> expected = first_terms_of(vectors);
    ASSERT_EQ(found.first_terms().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
      ASSERT_EQ(found.first_terms()[i].variable, expected[i].variable);
      ASSERT_EQ(found.first_terms()[i].position, expected[i].position);
    }
  });
  EXPECT_GT(with_repetitions, 20);
}

// Three products of two of three variables have one common multiple, and so three pairs; that of
// the last two is a difference of the others.
TEST(StrandLevel, RepeatsWhatPairsWithTheFirstOfACommonMultipleSay) {
  const ring_in_force ring(101, 3);
  const strand_starts start({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}});
  first_level first(start);
  const std::vector<linear_pair> pairs = pairs_of_generators(first.generators);
  const level_syzygies found(first.L, first.G, pairs);
  // Of 6 generators with leading monomials of degree 2: those of 10 monomials of degree 3.
  EXPECT_EQ(first.L.next().dimension(), 8);
  EXPECT_EQ(std::count(found.outcomes().begin(), found.outcomes().end(), pair_outcome::leftover),
            0);
  EXPECT_EQ(std::count(found.outcomes().begin(), found.outcomes().end(), pair_outcome::repetition),
            std::ssize(pairs) - 8);
  EXPECT_GT(std::ssize(pairs), 8);
}

// The coordinate that belongs to a vector is 1 at it, and 0 at the others.
TEST(StrandLevel, HasCoordinatesThatAreDualToItsVectors) {
  int levels = 0;
  for_each_special_or_random_set([&](const std::vector<coordinates>& points) {
    const strand_starts start(points);
    if (start.X.H.alpha < 2) return;
    first_level first(start);
    const level_syzygies found(first.L, first.G, pairs_of_generators(first.generators));
    const strand_level H{found.first_terms(), found.coordinates()};
    if (H.coordinates.empty()) return;
    ++levels;
    const form_vectors vectors = next_vectors(first.L, first.G, first.generators, H);
    // The sum of the values of the vectors at a place times these is the coordinate of the place.
    const auto rank = static_cast<std::size_t>(vectors.rank());
    for (int v = 0; v < dim; ++v) {
      for (std::size_t j = 0; j < rank; ++j) {
        const std::vector<row> at_place =
            coordinates_of(first.L, first.G.coordinates, {{v, static_cast<int>(j)}});
        row sum(at_place.front().size());
        for (int q = 0; q < vectors.count(); ++q) {
          vectors.vector(q).for_each([&](std::size_t place, Fp8 c) {
            if (place == v * rank + j) axpy(sum, H.coordinates[q], c);
          });
        }
        ASSERT_EQ(sum, at_place.front());
      }
    }
  });
  EXPECT_GT(levels, 50);
}

}  // namespace
}  // namespace zep::tests
