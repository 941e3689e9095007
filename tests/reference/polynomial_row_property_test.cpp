// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "reference/polynomial_row.h"
#include "tests/points/dense_rows.h"
#include "tests/points/random_rows.h"

namespace zep::tests {
namespace {

TEST(PolynomialRowProperty, IsMadeOfItsEntriesOrItsTerms) {
  for_random_rings([](kind k, std::mt19937& random) {
    const dense_row entries =
        random_row(k, below(random, 3), random_column_degrees(random), random);
    const int cols = static_cast<int>(entries.size());
    std::vector<polynomial_row::term> terms;
    for (int j = cols - 1; j >= 0; --j) {
      const polynomial& f = entries[j];
      for (int i = 0; i < f.no_of_monoms(); ++i) terms.push_back({f.term(i), j, f.coef(i)});
    }
    for (const polynomial_row& row : {polynomial_row(entries), polynomial_row(cols, terms)}) {
      ASSERT_NO_FATAL_FAILURE(expect_row(row, entries));
      ASSERT_EQ(row.entries(), entries);
      ASSERT_EQ(row.is_zero(), entries == dense_row(entries.size()));
    }
  });
}

}  // namespace
}  // namespace zep::tests
