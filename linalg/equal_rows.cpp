// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/equal_rows.h"

#include <iterator>

#include "base/interrupt.h"

namespace zep::linalg {

equal_rows::equal_rows(const matrix& m) {
  for (int i = 0; i < m.rows(); ++i) {
    heed_interrupt();
    insert(contents(m, i), i);
  }
}

std::optional<std::pair<int, int>> equal_rows::first_pair() const {
  if (repeated_.empty()) return std::nullopt;
  const auto& [first, rows] = *repeated_.begin();
  return std::pair(first, *std::next(rows->begin()));
}

void equal_rows::row_changed(const matrix& m, int i, const std::string& before) {
  erase(before, i);
  insert(contents(m, i), i);
}

std::string equal_rows::contents(const matrix& m, int i) {
  std::string key;
  for (const Fp8 x : m[i]) key += static_cast<char>(x.value());
  return key;
}

void equal_rows::insert(const std::string& key, int i) {
  group& rows = groups_[key];
  if (rows.size() > 1) repeated_.erase({*rows.begin(), &rows});
  rows.insert(i);
  if (rows.size() > 1) repeated_.emplace(*rows.begin(), &rows);
}

void equal_rows::erase(const std::string& key, int i) {
  const auto found = groups_.find(key);
  group& rows = found->second;
  if (rows.size() > 1) repeated_.erase({*rows.begin(), &rows});
  rows.erase(i);
  if (rows.size() > 1) repeated_.emplace(*rows.begin(), &rows);
  if (rows.empty()) groups_.erase(found);
}

}  // namespace zep::linalg
