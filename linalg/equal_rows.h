// SPDX-License-Identifier: GPL-3.0-or-later
// Which rows of a matrix are equal, while rows change.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>

#include "linalg/matrix.h"

namespace zep::linalg {

// Groups the rows of a matrix by their contents. Telling the first equal pair, or one changed row,
// takes time logarithmic in the number of rows, so that removing duplicates from many random points
// does not compare all pairs again after every draw.
class equal_rows {
 public:
  // Looks at the rows of m; m is not kept.
  explicit equal_rows(const matrix& m);
  ~equal_rows() = default;
  equal_rows(const equal_rows&) = delete;
  equal_rows& operator=(const equal_rows&) = delete;

  // The pair i < k of equal rows with the smallest i, and with the smallest k for that i.
  std::optional<std::pair<int, int>> first_pair() const;

  // Row i of m, which held `before` when it was looked at last, has new contents.
  void row_changed(const matrix& m, int i, const std::string& before);

  // The contents of row i as a key.
  static std::string contents(const matrix& m, int i);

 private:
  using group = std::set<int>;

  void insert(const std::string& key, int i);
  void erase(const std::string& key, int i);

  std::unordered_map<std::string, group> groups_;
  // The groups of more than one row, by their first row.
  std::set<std::pair<int, const group*>> repeated_;
};

}  // namespace zep::linalg
