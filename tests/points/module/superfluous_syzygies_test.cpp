// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/superfluous_syzygies.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/points/module_of_points.h"
#include "tests/points/plain_artinian.h"
#include "tests/points/special_sets.h"

namespace zep::tests {
namespace {

// Those that stay, by their degrees.
std::vector<int> degrees_of_the_rest(const module_of_points& m) {
  const std::vector<int> leading = m.leading();
  const std::vector<bool> superfluous = superfluous_syzygies(m.W, leading);
  std::vector<int> degrees;
  for (std::size_t i = 0; i < leading.size(); ++i) {
    if (!superfluous[i]) degrees.push_back(m.W.degree(leading[i]));
  }
  std::sort(degrees.begin(), degrees.end());
  return degrees;
}

TEST(SuperfluousSyzygies, OfThreePointsOffALineAreOneOfFour) {
  const ring_in_force ring(101, 2);
  const module_of_points m({{0, 0}, {1, 0}, {0, 1}});
  EXPECT_EQ(m.leading().size(), 4U);
  EXPECT_EQ(degrees_of_the_rest(m), (std::vector<int>{0, 0, 0}));
}

// There are five relations of the one generator; two more eliminate the other candidates.
TEST(SuperfluousSyzygies, OfFiveGeneralPointsLeaveSeven) {
  const ring_in_force ring;
  const module_of_points m({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {3, 7, 11}});
  EXPECT_EQ(degrees_of_the_rest(m), (std::vector<int>{0, 0, 0, 0, 0, 1, 1}));
}

TEST(SuperfluousSyzygies, OfOnePointAreNone) {
  const ring_in_force ring;
  const module_of_points m({{1, 2, 3}});
  EXPECT_EQ(degrees_of_the_rest(m), (std::vector<int>{-1, -1, -1}));
}

TEST(SuperfluousSyzygies, OfMeaninglessPointsBreakNothing) {
  for_each_meaningless_set([](const std::vector<coordinates>& points) {
    const module_of_points m(points);
    EXPECT_LE(degrees_of_the_rest(m).size(), m.leading().size());
  });
}

// The dual of R/(X_0) has a resolution over K[X, Y] of length two that ends with one summand, in
// degree -2, as 1 generates R. So its dimensions fix, in each degree, the generators less the
// relations; one relation too many would show.
TEST(SuperfluousSyzygiesProperty, InThePlaneTheRestMatchesTheHilbertFunction) {
  for_each_set([](const std::vector<coordinates>& points) {
    if (dim != 2) return;
    const module_of_points m(points);
    const plain_artinian plain(points);
    const auto dimension = [&](int d) {
      return d < 0 ? 0 : static_cast<int>(plain.members(d).size());
    };
    const std::vector<int> rest = degrees_of_the_rest(m);
    for (int d = -2; d <= plain.top_degree(); ++d) {
      int generators = 0;
      for (const int i : candidate_projections(m.X)) {
        if (m.W.degree_of_member(i) == d) ++generators;
      }
      const int relations = static_cast<int>(std::count(rest.begin(), rest.end(), d));
      const int relations_of_relations = d == -2 ? 1 : 0;
      ASSERT_EQ(generators - relations + relations_of_relations,
                dimension(d) - 2 * dimension(d + 1) + dimension(d + 2))
          << d;
    }
  });
}

}  // namespace
}  // namespace zep::tests
