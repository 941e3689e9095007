// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/session/identifiers.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "base/output.h"
#include "text/record.h"

namespace zep::front {

namespace {

bool is_alphanumeric(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool is_free(const identifier& id) { return id.name.empty(); }

}  // namespace

identifier* identifier_table::find(const std::string& name) {
  const auto found =
      std::find_if(var_.begin(), var_.end(), [&](const identifier& id) { return id.name == name; });
  return found == var_.end() ? nullptr : &*found;
}

std::vector<std::string> identifier_table::names() const {
  std::vector<std::string> used;
  for (const identifier& id : var_) {
    if (!is_free(id)) used.push_back(id.name);
  }
  return used;
}

void identifier_table::del(identifier& id, bool quiet) {
  if (!quiet) std::cout << id.name << " deleted\n";
  id = identifier();
}

void identifier_table::del_all(bool quiet) {
  bool any = false;
  for (identifier& id : var_) {
    if (is_free(id)) continue;
    del(id, quiet);
    any = true;
  }
  if (any && !quiet) std::cout << Line;
}

void identifier_table::display(const identifier& id, bool full) {
  if (id.object != nullptr) std::cout << "scheme " << id.name;
  std::cout << (full ? ":\n" : "\n");
  if (full && id.object != nullptr) text::display(std::cout, std::cout, *id.object);
}

void identifier_table::list_all(bool full) const {
  for (const identifier& id : var_) {
    if (!is_free(id)) display(id, full);
  }
}

std::optional<reservation> reservation::read(input& in, identifier_table& table,
                                             complaints& wrong) {
  const std::string name = in.word(identifier_length);
  if (!std::all_of(name.begin(), name.end(), is_alphanumeric)) {
    wrong.error(error_code::not_alphanumeric);
    return std::nullopt;
  }
  if (table.find(name) != nullptr) {
    wrong.error(error_code::already_exists);
    return std::nullopt;
  }
  const auto free = std::find_if(table.var_.begin(), table.var_.end(), is_free);
  if (free == table.var_.end()) {
    wrong.error(error_code::memory_exceeded);
    return std::nullopt;
  }
  free->name = name;
  return reservation(*free);
}

reservation::reservation(reservation&& other) noexcept : id_(std::exchange(other.id_, nullptr)) {}

reservation::~reservation() {
  if (id_ != nullptr) identifier_table::del(*id_, true);
}

void reservation::fill(std::unique_ptr<scheme> object) {
  id_->object = std::move(object);
  id_ = nullptr;
}

}  // namespace zep::front
