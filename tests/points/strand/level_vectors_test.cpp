// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/level_vectors.h"

#include <gtest/gtest.h>

#include "linalg/row_operations.h"
#include "tests/points/plain_strand.h"
#include "tests/points/strand_sets.h"

namespace zep::tests {
namespace {

// The sum of c times the coordinate that belongs to vector i, over the entries c of the vectors at
// a place.
row combination_at(const form_vectors& vectors, std::size_t place,
                   const std::vector<row>& coordinates, std::size_t dimension) {
  row sum(dimension);
  for (int i = 0; i < vectors.count(); ++i) {
    vectors.vector(i).for_each([&](std::size_t at, Fp8 c) {
      if (at == place) axpy(sum, coordinates[i], c);
    });
  }
  return sum;
}

// At each place, a variable with a generator, not only at the first terms they are made from.
TEST(LevelVectors, KnowTheCoordinatesThatBelongToRelations) {
  int sets = 0;
  for_each_special_or_random_set([&](const std::vector<coordinates>& points) {
    const strand_starts start(points);
    if (start.X.H.alpha < 2) return;
    const int rank = plain_no_of_generators(start.w_R);
    form_vectors relations = vectors_of(plain_relations(start.w_R, rank), rank);
    if (relations.count() == 0) return;
    ++sets;
    relations.interreduce();
    const koszul_complex K(start.A);
    const spaces_of_module L(K);
    const std::vector<row> coordinates = coordinates_of_relations(L, relations);
    ASSERT_EQ(std::ssize(coordinates), L.next().dimension());
    std::vector<row> units(rank, row(static_cast<std::size_t>(rank)));
    for (int t = 0; t < rank; ++t) units[t][t] = 1;
    for (std::size_t m = 0; m < relations.monomials().size(); ++m) {
      for (int v = 0; v < dim; ++v) {
        if (relations.monomials()[m].exp(v) == 0) continue;
        for (int t = 0; t < rank; ++t) {
          ASSERT_EQ(combination_at(relations, m * rank + t, coordinates, coordinates.size()),
                    coordinates_of(L, units, {{v, t}}).front());
        }
      }
    }
  });
  EXPECT_GT(sets, 50);
}

}  // namespace
}  // namespace zep::tests
