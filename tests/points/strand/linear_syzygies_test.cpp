// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/linear_syzygies.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tests/arith/power_product.h"
#include "tests/ring_in_force.h"
#include "tests/told.h"
#include "tests/told_in_order.h"

namespace zep::tests {
namespace {

monom X(int e = 1) { return projective({e}); }
monom Y(int e = 1) { return projective({0, e}); }
monom Z(int e = 1) { return projective({0, 0, e}); }

bool operator==(const linear_pair& a, const linear_pair& b) {
  return a.i == b.i && a.j == b.j && a.times_i == b.times_i && a.times_j == b.times_j;
}

form_vectors generators(const std::vector<polynomial>& polynomials) {
  std::vector<std::vector<polynomial>> components;
  for (const polynomial& f : polynomials) components.push_back({f});
  return vectors_of(components, 1);
}

struct result {
  form_vectors syzygies;
  std::string out;
  std::string err;
};

result syzygies_of(const form_vectors& G, const std::vector<linear_pair>& pairs) {
  told reporter;
  form_vectors syzygies = linear_syzygies(G, pairs, reporter);
  return {std::move(syzygies), reporter.out, reporter.err};
}

TEST(PairsOfGenerators, HaveACommonMultipleOneDegreeHigher) {
  const ring_in_force ring(101, 2);
  const form_vectors G = generators(
      {polynomial(X() * Y()), polynomial(Y(2)), polynomial(X(2)), polynomial(X() * Z())});
  const std::vector<linear_pair> pairs = pairs_of_generators(G);
  // Powers of the homogenising variable do not count: X * Z divides everything with an X.
  ASSERT_GE(pairs.size(), 2U);
  EXPECT_TRUE((pairs[0] == linear_pair{0, 1, 1, 0}));
  EXPECT_TRUE((pairs[1] == linear_pair{0, 2, 0, 1}));
}

TEST(PairsOfGenerators, AreNoneWhenTheLeadingMonomialsAreFarApart) {
  const ring_in_force ring(101, 2);
  EXPECT_TRUE(pairs_of_generators(generators({polynomial(X(2)), polynomial(Y(2))})).empty());
  EXPECT_TRUE(pairs_of_generators(generators({polynomial(X(2))})).empty());
  EXPECT_TRUE(pairs_of_generators(generators({})).empty());
}

TEST(PairsOfLinearVectors, HaveTheirFirstTermsAtOnePosition) {
  const ring_in_force ring(101, 2);
  const polynomial zero(0);
  const form_vectors G = vectors_of({{polynomial(X()), zero},
                                     {zero, polynomial(Y())},
                                     {polynomial(Y()), zero},
                                     {zero, zero},
                                     {polynomial(Z()), zero},
                                     {zero, polynomial(X())}},
                                    2);
  const std::vector<linear_pair> pairs = pairs_of_linear_vectors(first_terms_of(G));
  const std::vector<linear_pair> expected = {
      {0, 2, 1, 0}, {0, 4, 2, 0}, {1, 5, 0, 1}, {2, 4, 2, 1}};
  ASSERT_EQ(pairs.size(), expected.size());
  for (std::size_t k = 0; k < pairs.size(); ++k) EXPECT_TRUE(pairs[k] == expected[k]) << k;
}

TEST(LinearSyzygies, OfAPairHaveMinusItsFirstFactorAndItsSecond) {
  const ring_in_force ring(101, 2);
  const form_vectors G = generators({polynomial(X() * Y()), polynomial(Y(2))});
  const result found = syzygies_of(G, pairs_of_generators(G));
  ASSERT_EQ(found.syzygies.count(), 1);
  EXPECT_EQ(found.syzygies.rank(), 2);
  EXPECT_EQ(found.syzygies.components(0), (std::vector{-polynomial(Y()), polynomial(X())}));
  EXPECT_EQ(found.out, "");
  EXPECT_EQ(found.err, "eliminating syzygies ...\n[1]\n");
}

TEST(LinearSyzygies, AreZeroWhereSomethingIsLeftWhichADotMarks) {
  const ring_in_force ring(101, 2);
  const form_vectors G = generators({sum_of({{1, X() * Y()}, {1, Z(2)}}), polynomial(Y(2))});
  const result found = syzygies_of(G, pairs_of_generators(G));
  ASSERT_EQ(found.syzygies.count(), 1);
  EXPECT_EQ(found.syzygies.no_of_nonzero(), 0);
  EXPECT_EQ(found.out, ".");
}

TEST(LinearSyzygies, AreCountedBeforeTheyAreMarked) {
  const ring_in_force ring(101, 2);
  const form_vectors G = generators(
      {sum_of({{1, X() * Y()}, {1, Z(2)}}), polynomial(Y(2)), sum_of({{1, X(2)}, {2, Z(2)}})});
  std::ostringstream screen;
  told_in_order reporter(screen);
  linear_syzygies(G, pairs_of_generators(G), reporter);
  EXPECT_EQ(screen.str(), "eliminating syzygies ...\n[2].[1].\n");
}

TEST(LinearSyzygies, UseWhatEarlierPairsHaveLeft) {
  const ring_in_force ring(101, 2);
  const polynomial zero(0);
  // X * G_1 - Y * G_0 and Z * G_0 - X * G_2 both leave Z^2 at position 1, up to a factor.
  const form_vectors G = vectors_of({{polynomial(X()), polynomial(Z())},
                                     {polynomial(Y()), zero},
                                     {polynomial(Z()), zero},
                                     {zero, polynomial(X())}},
                                    2);
  const result found = syzygies_of(G, pairs_of_linear_vectors(first_terms_of(G)));
  ASSERT_EQ(found.syzygies.count(), 3);
  EXPECT_EQ(found.out, "..");
  EXPECT_EQ(found.syzygies.no_of_nonzero(), 1);
  EXPECT_EQ(found.syzygies.components(2),
            (std::vector{zero, -polynomial(Z()), polynomial(Y()), zero}));
}

TEST(LinearSyzygies, OfNoPairsTellAnEmptyLine) {
  const ring_in_force ring(101, 2);
  const result found = syzygies_of(generators({polynomial(X())}), {});
  EXPECT_EQ(found.syzygies.count(), 0);
  EXPECT_EQ(found.out, "");
  EXPECT_EQ(found.err, "\n");
}

TEST(LinearSyzygies, AreMarkedForWhoeverListens) {
  const ring_in_force ring(101, 2);
  const form_vectors G = generators({sum_of({{1, X() * Y()}, {1, Z(2)}}), polynomial(Y(2))});
  told inattentive(false);
  linear_syzygies(G, pairs_of_generators(G), inattentive);
  EXPECT_EQ(inattentive.out, ".");
}

}  // namespace
}  // namespace zep::tests
