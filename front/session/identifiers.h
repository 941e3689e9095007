// SPDX-License-Identifier: GPL-3.0-or-later
// The identifier table: owns every point set that the user has made.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "front/session/error.h"
#include "front/session/input.h"
#include "points/record/scheme.h"

namespace zep::front {

// Words for commands and identifiers are cut to this length.
inline constexpr int identifier_length = 12;

// A name with its scheme. While the scheme is being made there is none yet; a free one has no name.
struct identifier {
  std::string name;
  std::unique_ptr<scheme> object;
};

class reservation;

// 50 identifiers, some of them free.
class identifier_table {
 public:
  static constexpr int size = 50;

  // The identifier with that name, which is not empty; null if there is none.
  identifier* find(const std::string& name);

  // The names in use, in the order of the table.
  std::vector<std::string> names() const;

  // Frees the identifier, which is one of the table, and destroys its scheme; says so unless
  // `quiet`.
  static void del(identifier& id, bool quiet);

  // Frees every identifier, in order; unless `quiet`, Line follows if there was any.
  void del_all(bool quiet);

  // Prints name and type of the identifier, with all that is known of the scheme if `full`.
  static void display(const identifier& id, bool full);

  // Displays every identifier in use, in order.
  void list_all(bool full) const;

 private:
  friend class reservation;

  std::array<identifier, size> var_;
};

// An identifier that is being filled. It is in the table from the start, and freed again when the
// reservation ends without a scheme.
class reservation {
 public:
  // Reads a name and reserves the lowest free identifier of the table for it. A bad name, one in
  // use or a full table is complained of, and nothing is reserved. Throws end_of_input.
  static std::optional<reservation> read(input& in, identifier_table& table, complaints& wrong);

  reservation(reservation&& other) noexcept;
  reservation(const reservation&) = delete;
  reservation& operator=(const reservation&) = delete;
  reservation& operator=(reservation&&) = delete;
  ~reservation();

  // Gives it the scheme.
  void fill(std::unique_ptr<scheme> object);

 private:
  explicit reservation(identifier& id) : id_(&id) {}

  // Null when nothing is left to free.
  identifier* id_;
};

}  // namespace zep::front
