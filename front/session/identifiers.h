// The identifier table: owns every point set that the user has made.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "front/session/input.h"
#include "points/record/scheme.h"

namespace zep::front {

// Words for commands and identifiers are cut to this length.
constexpr int identifier_length = 12;

// What `identifier_table::find` answers for a word that names nothing.
constexpr int unknown_identifier = -2;
// An index for no word at all.
constexpr int no_identifier = -1;

// The type of an identifier that names a scheme, the only type there is; 0 is a free record.
constexpr int scheme_type = 3;

class reservation;

// 50 records, each free (empty name) or a named scheme.
class identifier_table {
 public:
  static constexpr int size = 50;

  // Index of the record with that name, or unknown_identifier.
  int find(const std::string& name) const;

  // Type of record i.
  int type(int i) const { return entry(i).type; }

  // The scheme of record i. Requires type scheme_type.
  scheme& object(int i) const { return *entry(i).object; }

  // The names in use, in index order.
  std::vector<std::string> names() const;

  // Frees record i and destroys its scheme; says so unless `quiet`.
  void del(int i, bool quiet);

  // Frees every record, in index order; unless `quiet`, Line follows if there was any.
  void del_all(bool quiet);

  // Prints name and type of record i, with all that is known of the scheme if `full`.
  void display(int i, bool full) const;

  // Displays every record in use, in index order.
  void list_all(bool full) const;

 private:
  friend class reservation;

  struct record {
    std::string name;
    int type = 0;
    std::unique_ptr<scheme> object;
  };

  record& entry(int i) { return var_[i]; }
  const record& entry(int i) const { return var_[i]; }
  int first_free() const;

  std::array<record, size> var_;
};

// A record that is being filled. It is in the table from the start, and freed again when the
// reservation ends without a scheme.
class reservation {
 public:
  // Reads a name and reserves the lowest free record of the table under it. A bad name, one in use
  // or a full table is reported, and nothing is reserved. Throws end_of_input.
  static std::optional<reservation> read(input& in, identifier_table& table);

  reservation(reservation&& other) noexcept;
  reservation(const reservation&) = delete;
  reservation& operator=(const reservation&) = delete;
  reservation& operator=(reservation&&) = delete;
  ~reservation();

  // Gives the scheme to the record, which is an identifier from now on.
  void fill(std::unique_ptr<scheme> object);

 private:
  reservation(identifier_table& table, int index) : table_(&table), index_(index) {}

  // Null when nothing is left to free.
  identifier_table* table_;
  int index_;
};

}  // namespace zep::front
