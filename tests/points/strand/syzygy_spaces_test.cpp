// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/syzygy_spaces.h"

#include <gtest/gtest.h>

#include "linalg/row_space.h"
#include "tests/points/plain_artinian.h"
#include "tests/points/plain_presentation.h"
#include "tests/points/strand_sets.h"

namespace zep::tests {
namespace {

std::vector<const_row_view> views(const std::vector<row>& rows) {
  return {rows.begin(), rows.end()};
}

// All coordinates of the space of this level.
std::vector<row> coordinates_here(const syzygy_spaces& L) {
  const auto n = static_cast<std::size_t>(L.here().dimension());
  std::vector<row> units(n, row(n));
  for (std::size_t k = 0; k < n; ++k) units[k][k] = 1;
  return units;
}

// The coordinates of this level at all contractions of elements of the next one: by variable, row
// after row.
std::vector<std::vector<row>> all_contracted(const syzygy_spaces& L) {
  std::vector<std::vector<row>> all;
  const std::vector<row> units = coordinates_here(L);
  for (int v = 0; v < L.no_of_variables(); ++v) all.push_back(L.contracted(v, views(units)));
  return all;
}

// An element all of whose contractions are 0 is 0.
void expect_injective(const syzygy_spaces& L) {
  row_space functionals(L.next().dimension());
  for (const std::vector<row>& of_v : all_contracted(L)) functionals.add_rows(of_v);
  ASSERT_EQ(functionals.rank(), L.next().dimension());
}

// Contractions by v and w, one after the other, and in the other order add up to 0; by v twice is
// 0. `before` are those from this level to the one before, as functionals here.
void expect_alternating(const std::vector<std::vector<row>>& before, const syzygy_spaces& L) {
  for (int v = 0; v < L.no_of_variables(); ++v) {
    for (int w = 0; w <= v; ++w) {
      const std::vector<row> vw = L.contracted(w, views(before[v]));
      const std::vector<row> wv = L.contracted(v, views(before[w]));
      for (std::size_t k = 0; k < vw.size(); ++k) {
        for (std::size_t i = 0; i < vw[k].size(); ++i) ASSERT_EQ(vw[k][i] + wv[k][i], 0);
      }
    }
  }
}

// beta(k) is the Betti number that belongs to level k.
template <class Betti>
void expect_strand(syzygy_spaces& L, Betti beta) {
  std::vector<std::vector<row>> before;
  for (int level = 0; level < dim; ++level) {
    ASSERT_EQ(L.here().dimension(), beta(level)) << "level " << level;
    ASSERT_EQ(L.next().dimension(), level + 1 < dim ? beta(level + 1) : 0) << "level " << level;
    expect_injective(L);
    if (level > 0) expect_alternating(before, L);
    before = all_contracted(L);
    L.advance();
  }
}

TEST(SyzygySpaces, HaveBettiNumbersAsDimensionsAndAlternatingContractions) {
  int sets = 0;
  for_each_special_or_random_set([&](const std::vector<coordinates>& points) {
    const order_ideal X = walked(points);
    if (X.H.alpha < 2) return;
    ++sets;
    const canonical_forms A = Can_Lf(X);
    const koszul_complex K(A);
    const plain_artinian artinian(points);
    const plain_betti betti(artinian);
    spaces_of_ideal of_ideal(K, X.H.alpha);
    expect_strand(of_ideal, [&](int k) { return betti(k + 1, k + X.H.alpha); });
    spaces_of_module of_module(K);
    expect_strand(of_module, [&](int k) { return betti(dim - k, dim - k + A.top_degree()); });
  });
  EXPECT_GT(sets, 100);
}

TEST(SyzygySpaces, OfAStrandThatIsOverStayZero) {
  const ring_in_force ring(101, 2);
  // A complete intersection of two conics.
  const order_ideal X = walked({{1, 2}, {4, 7}, {5, 3}, {8, 9}});
  const canonical_forms A = Can_Lf(X);
  const koszul_complex K(A);
  spaces_of_ideal L(K, 2);
  EXPECT_EQ(L.here().dimension(), 2);
  for (int level = 0; level < 5; ++level) {
    EXPECT_EQ(L.next().dimension(), 0);
    L.advance();
    EXPECT_EQ(L.here().dimension(), 0);
  }
}

}  // namespace
}  // namespace zep::tests
