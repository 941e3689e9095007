// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/points/plain_presentation.h"

#include <gtest/gtest.h>

#include "tests/points/computed_presentation.h"

namespace zep::tests {
namespace {

const std::vector<coordinates> triangle = {{0, 0}, {1, 0}, {0, 1}};

// The terms of X, Y, X_0 with these coefficients that are not 0.
plain_form linear_form(int x, int y, int x_0) {
  plain_form terms;
  if (x != 0) terms.push_back({{1, 0, 0}, x});
  if (y != 0) terms.push_back({{0, 1, 0}, y});
  if (x_0 != 0) terms.push_back({{0, 0, 1}, x_0});
  return terms;
}

plain_presentation presentation_of_triangle() {
  return {{{0, 1}, {1, 0}},
          {{linear_form(1, 0, 0), {}},
           {{}, linear_form(0, 1, 0)},
           {linear_form(0, 1, 100), linear_form(100, 0, 1)}}};
}

// Three points on a line and one off it; the projection to X^2 is one degree below that to Y.
const std::vector<coordinates> three_on_a_line = {{0, 0}, {1, 0}, {2, 0}, {0, 1}};

TEST(PlainPresentation, OfATriangleHasNoFaults) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(faults_of(triangle, presentation_of_triangle()), faults{});
}

TEST(PlainPresentation, OfOnePointHasNoFaults) {
  const ring_in_force ring(101, 2);
  const plain_presentation right = {{{0, 0}}, {{linear_form(1, 0, 98)}, {linear_form(2, 1, 91)}}};
  EXPECT_EQ(faults_of({{3, 4}}, right), faults{});
}

TEST(PlainPresentation, WithAWrongEntryIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[2][1][0].second = 99;
  EXPECT_EQ(faults_of(triangle, wrong), faults{not_a_relation});
}

TEST(PlainPresentation, WithAConstantEntryIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[0][0] = {{{0, 0, 0}, 1}};
  EXPECT_TRUE(faults_of(triangle, wrong).contains(constant_entry));
}

TEST(PlainPresentation, WithAnInhomogeneousRelationIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[0][0].push_back({{2, 0, 0}, 1});
  EXPECT_EQ(faults_of(triangle, wrong), faults{not_homogeneous});
  wrong = presentation_of_triangle();
  wrong.relations[0][1] = {{{0, 2, 0}, 1}};
  EXPECT_EQ(faults_of(triangle, wrong), faults{not_homogeneous});
}

TEST(PlainPresentation, WithARelationOfTheWrongLengthIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[0].pop_back();
  EXPECT_EQ(faults_of(triangle, wrong), faults{wrong_length});
}

TEST(PlainPresentation, WithAZeroRelationIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[1][1].clear();
  EXPECT_EQ(faults_of(triangle, wrong), faults{zero_relation});
}

TEST(PlainPresentation, WithAnotherBasisOfTheRelationsHasNoFaults) {
  const ring_in_force ring(101, 2);
  plain_presentation other = presentation_of_triangle();
  other.relations[0][1] = linear_form(0, 7, 0);
  other.relations[2][0] = linear_form(3, 5, 96);
  other.relations[2][1] = linear_form(96, 4, 5);
  EXPECT_EQ(faults_of(triangle, other), faults{});
}

TEST(PlainPresentation, WithADependentRelationInPlaceOfAnotherIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[2] = {linear_form(5, 0, 0), linear_form(0, 6, 0)};
  EXPECT_EQ(faults_of(triangle, wrong), (faults{superfluous, missing_relations}));
}

TEST(PlainPresentation, WithAMultipleInPlaceOfARelationIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = presentation_of_triangle();
  wrong.relations[2] = {{{{0, 2, 0}, 1}, {{0, 1, 1}, 100}}, {{{1, 1, 0}, 100}, {{0, 1, 1}, 1}}};
  EXPECT_EQ(faults_of(triangle, wrong), (faults{wrong_relations, missing_relations}));
}

TEST(PlainPresentation, WithWrongGeneratorsIsNoted) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(faults_of(triangle, {{{1, 0}, {0, 1}}, {}}),
            (faults{generators_not_ascending, wrong_relations, missing_relations}));
  EXPECT_EQ(faults_of(triangle, {{{0, 1}}, {}}),
            (faults{wrong_generators, not_generating, wrong_relations, missing_relations}));
  EXPECT_TRUE(faults_of(triangle, {{{0, 0}, {0, 1}, {1, 0}}, {}}).contains(not_maximal));
  EXPECT_EQ(faults_of(triangle, {{{0, 1}, {1, 1}}, {}}), faults{not_in_O});
}

TEST(PlainPresentation, WithTheWrongChoiceOfMaximalMonomialsIsNoted) {
  const ring_in_force ring(101, 3);
  // Four points in general position in the plane X = 0 and one off it: the products with X are 0 in
  // R/(X_0), so that the projections to X and Z^2 generate while those to Y and Z^2 do not.
  const std::vector<coordinates> points = {{0, 0, 0}, {0, 1, 2}, {0, 3, 1}, {0, 4, 9}, {1, 0, 0}};
  const exponents x = {1, 0, 0};
  const exponents y = {0, 1, 0};
  const exponents z_2 = {0, 0, 2};
  EXPECT_FALSE(faults_of(points, {{x, z_2}, {}}).contains(not_generating));
  const faults found = faults_of(points, {{y, z_2}, {}});
  EXPECT_TRUE(found.contains(not_generating));
  EXPECT_FALSE(found.contains(wrong_generators) || found.contains(not_maximal));
}

TEST(PlainPresentation, WithRelationsInTheWrongOrderIsNoted) {
  const ring_in_force ring(101, 2);
  plain_presentation wrong = plain_presentation_of(three_on_a_line);
  ASSERT_EQ(faults_of(three_on_a_line, wrong), faults{});
  std::reverse(wrong.relations.begin(), wrong.relations.end());
  EXPECT_EQ(faults_of(three_on_a_line, wrong), faults{relations_not_ascending});
}

TEST(PlainPresentation, WithoutAnyOneOfTheRelationsIsNoted) {
  for_each_random_or_flat_set(1, [](const std::vector<coordinates>& points) {
    const plain_canonical_module module(points);
    const plain_presentation right = plain_presentation_of(points);
    ASSERT_FALSE(right.relations.empty());
    const std::size_t step = right.relations.size() / 6 + 1;
    for (std::size_t c = 0; c < right.relations.size(); c += step) {
      plain_presentation wrong = right;
      wrong.relations.erase(wrong.relations.begin() + static_cast<std::ptrdiff_t>(c));
      ASSERT_EQ(faults_of(module, wrong), (faults{wrong_relations, missing_relations}));
    }
  });
}

TEST(PlainPresentation, WithAMultipleOfARelationAddedIsNoted) {
  for_each_random_or_flat_set(1, [](const std::vector<coordinates>& points) {
    const plain_canonical_module module(points);
    plain_presentation wrong = plain_presentation_of(points);
    const std::vector<int> degrees = plain_examination(module, wrong).degrees();
    const int degree = degrees.front() + 1;
    plain_relation multiple = wrong.relations.front();
    for (plain_form& form : multiple) form = times_variable(form, dim - 1);
    const auto behind = std::upper_bound(degrees.begin(), degrees.end(), degree);
    wrong.relations.insert(wrong.relations.begin() + (behind - degrees.begin()), multiple);
    const faults found = faults_of(module, wrong);
    ASSERT_TRUE(found.contains(wrong_relations));
    ASSERT_TRUE(found.contains(superfluous) || degree > module.largest_degree());
  });
}

TEST(PlainPresentation, WithAChangedCoefficientIsNotedUnlessItsTermIsARelation) {
  int noted = 0;
  for_each_random_or_flat_set(1, [&](const std::vector<coordinates>& points) {
    const plain_canonical_module module(points);
    plain_presentation wrong = plain_presentation_of(points);
    plain_relation& last = wrong.relations.back();
    const auto changed = std::find_if(last.begin(), last.end(),
                                      [](const plain_form& entry) { return !entry.empty(); });
    ASSERT_NE(changed, last.end());
    auto& [e, c] = changed->front();
    const exponents& generator = wrong.generators[static_cast<int>(changed - last.begin())];
    const bool still = is_zero(module.multiple({{e, 1}}, generator));
    c = (c + 1) % Fp8::prime;
    ASSERT_EQ(faults_of(module, wrong).contains(not_a_relation), !still);
    noted += still ? 0 : 1;
  });
  EXPECT_GT(noted, 20);
}

TEST(PlainPresentation, NumbersOfTheResolutionAddUpToTheHilbertFunction) {
  for_each_random_or_flat_set(1, [](const std::vector<coordinates>& points) {
    const plain_artinian artinian(points);
    const plain_betti betti(artinian);
    for (int j = 0; j <= dim + artinian.top_degree() + 1; ++j) {
      int sum = 0;
      for (int i = 0; i <= dim; ++i) {
        const auto members = static_cast<int>(artinian.members(j - i).size());
        sum += (i % 2 == 0 ? 1 : -1) * (betti(i, j) - plain_binomial(dim, i) * members);
      }
      ASSERT_EQ(sum, 0);
      if (j <= artinian.top_degree()) {
        ASSERT_EQ(betti(dim, dim + j), artinian.socle_dimension(j));
      }
    }
  });
}

}  // namespace
}  // namespace zep::tests
