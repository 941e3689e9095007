#include "front/session/identifiers.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "base/output.h"
#include "front/session/error.h"
#include "text/record.h"

namespace zep::front {

namespace {

bool is_alphanumeric(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

int identifier_table::find(const std::string& name) const {
  for (int i = 0; i < size; ++i) {
    if (entry(i).name == name) return i;
  }
  return unknown_identifier;
}

int identifier_table::first_free() const { return find(std::string()); }

std::vector<std::string> identifier_table::names() const {
  std::vector<std::string> used;
  for (int i = 0; i < size; ++i) {
    if (!entry(i).name.empty()) used.push_back(entry(i).name);
  }
  return used;
}

void identifier_table::del(int i, bool quiet) {
  if (!quiet) std::cout << entry(i).name << " deleted\n";
  entry(i) = record();
}

void identifier_table::del_all(bool quiet) {
  bool any = false;
  for (int i = 0; i < size; ++i) {
    if (entry(i).name.empty()) continue;
    del(i, quiet);
    any = true;
  }
  if (any && !quiet) std::cout << Line;
}

void identifier_table::display(int i, bool full) const {
  if (type(i) == scheme_type) std::cout << "scheme " << entry(i).name;
  std::cout << (full ? ":\n" : "\n");
  if (full && type(i) == scheme_type) std::cout << object(i);
}

void identifier_table::list_all(bool full) const {
  for (int i = 0; i < size; ++i) {
    if (!entry(i).name.empty()) display(i, full);
  }
}

std::optional<reservation> reservation::read(input& in, identifier_table& table) {
  const std::string name = in.word(identifier_length);
  if (!std::all_of(name.begin(), name.end(), is_alphanumeric)) {
    error(error_code::not_alphanumeric);
    return std::nullopt;
  }
  if (table.find(name) != unknown_identifier) {
    error(error_code::already_exists);
    return std::nullopt;
  }
  const int index = table.first_free();
  if (index == unknown_identifier) {
    error(error_code::memory_exceeded);
    return std::nullopt;
  }
  table.entry(index).name = name;
  return reservation(table, index);
}

reservation::reservation(reservation&& other) noexcept
    : table_(std::exchange(other.table_, nullptr)), index_(other.index_) {}

reservation::~reservation() {
  if (table_ != nullptr) table_->del(index_, true);
}

void reservation::fill(std::unique_ptr<scheme> object) {
  table_->entry(index_).object = std::move(object);
  table_->entry(index_).type = scheme_type;
  table_ = nullptr;
}

}  // namespace zep::front
