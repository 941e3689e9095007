// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of polynomials with all their entries.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "arith/ordering.h"
#include "reference/polynomial_rows.h"
#include "tests/text_of.h"

namespace zep::tests {

using dense_row = std::vector<polynomial>;
using dense_matrix = std::vector<dense_row>;

// The entries, put together term by term.
inline dense_row entries_of(const polynomial_row& row) {
  std::vector<std::vector<monom>> monoms(row.cols());
  std::vector<std::vector<Fp8>> coefs(row.cols());
  for (const polynomial_row::term& t : row.terms()) {
    monoms[t.column].push_back(t.m);
    coefs[t.column].push_back(t.c);
  }
  dense_row entries;
  for (int j = 0; j < row.cols(); ++j) {
    entries.emplace_back(std::move(monoms[j]), std::move(coefs[j]));
  }
  return entries;
}

inline dense_matrix entries_of(const polynomial_matrix& A) {
  dense_matrix entries;
  for (const polynomial_row& row : A) entries.push_back(entries_of(row));
  return entries;
}

inline polynomial_matrix rows_of(const dense_matrix& A) {
  polynomial_matrix rows;
  for (const dense_row& row : A) rows.emplace_back(row);
  return rows;
}

inline std::string text_of_row(const dense_row& row) {
  std::string text;
  for (const polynomial& f : row) text += text_of(f) + " ; ";
  return text;
}

inline void expect_in_order(const polynomial_row& row) {
  for (std::size_t i = 0; i < row.terms().size(); ++i) {
    const polynomial_row::term& t = row.terms()[i];
    ASSERT_NE(t.c.value(), 0);
    ASSERT_GE(t.column, 0);
    ASSERT_LT(t.column, row.cols());
    if (i == 0) continue;
    const polynomial_row::term& before = row.terms()[i - 1];
    ASSERT_TRUE(before.column < t.column || (before.column == t.column && before.m > t.m));
  }
}

inline void expect_row(const polynomial_row& row, const dense_row& expected) {
  expect_in_order(row);
  EXPECT_EQ(entries_of(row), expected) << text_of_row(entries_of(row));
}

}  // namespace zep::tests
