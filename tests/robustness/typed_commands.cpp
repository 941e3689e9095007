// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/robustness/typed_commands.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "front/commands/command.h"
#include "tests/robustness/typed_points.h"

namespace zep::tests {

namespace {

using namespace std::string_view_literals;

constexpr int most_records = 50;
constexpr std::array bad_numbers = {
    "0"sv,   "1"sv, "-7"sv, "x"sv,  "99999999999"sv, "-99999999999"sv,
    "252"sv, "+"sv, "-"sv,  "1x"sv, "\xff"sv,        ""sv};
constexpr std::array characteristics = {2, 3, 5, 7, 11, 13, 31, 101, 101, 127, 251};
constexpr std::array composite = {4, 6, 9, 15, 25, 100, 128, 221, 249, 250};
constexpr std::array ring_names = {
    "WXYZT"sv, "!@#$%"sv, "XXXXX"sv, "12345"sv, "\xc3\xa9\xc3\xa8t"sv,
    "'<:>;"sv, "+-*^2"sv, "abcdef"sv};
constexpr auto many_names = "abcdefghijklmnopqrstuvwxyzABCD"sv;

bool asks_filename(std::string_view name) {
  return name.starts_with("put") || name.starts_with("write");
}

bool deletes_all(std::string_view name) {
  constexpr std::array names = {"char"sv, "deglex"sv, "degrevlex"sv, "del_all"sv, "dim"sv};
  return std::find(names.begin(), names.end(), name) != names.end();
}

void type_char(session_draft& s) {
  s.say("char");
  if (s.d.one_in(5)) {
    s.say(s.d.pick(bad_numbers));
  } else {
    s.p = s.d.one_in(6) ? s.d.pick(composite) : s.d.pick(characteristics);
    s.say(std::to_string(s.p));
    s.forget_sets();
  }
  s.end_line();
}

void type_dim(session_draft& s) {
  s.say("dim");
  if (s.d.one_in(5)) {
    constexpr std::array bad_dimensions = {"0"sv, "1"sv, "-7"sv, "x"sv, "99999999999"sv, "+"sv};
    s.say(s.d.pick(bad_dimensions));
    return s.end_line();
  }
  s.dim = s.new_dimension();
  s.say(std::to_string(s.dim));
  s.forget_sets();
  s.end_line();
  if (s.dim + 1 <= s.names) return;
  if (s.d.one_in(4)) s.say("abc");
  s.say(many_names.substr(0, s.dim + 1));
  s.names = s.dim + 1;
  s.end_line();
}

void type_identifiers(session_draft& s) {
  s.say("identifiers");
  std::string_view names = s.d.one_in(4) ? many_names : s.d.pick(ring_names);
  if (s.d.one_in(4)) s.end_line();
  s.say(names);
  // Too few are asked for again; words that hold enough are for the taking.
  if (static_cast<int>(names.size()) <= s.dim) s.say(names = many_names);
  s.names = static_cast<int>(names.size());
  s.end_line();
}

void type_range(session_draft& s) {
  s.say("range");
  while (s.d.one_in(3)) {
    s.end_line();
    s.say(s.d.pick(bad_numbers));
  }
  if (s.d.one_in(2)) s.end_line();
  s.say(std::to_string(s.d.one_in(3) ? s.d.between(1, 300) : s.d.between(3, 50)));
  s.end_line();
}

void type_quit(session_draft& s) {
  if (!s.d.one_in(5)) return;
  s.say("quit");
  s.end_line();
}

void type_exit(session_draft& s) {
  if (!s.d.one_in(5)) return;
  s.say("exit");
  s.end_line();
}

void type_get(session_draft& s) {
  const std::string_view name = s.new_name();
  s.say("get");
  s.say(name);
  if (s.d.one_in(12)) {
    // All that follows is read as points, as long as it can be.
    s.say(s.d.one_in(2) ? "2000000000" : s.some_count(name));
    return s.end_line();
  }
  const int count = s.count_for(name);
  if (s.d.one_in(3)) s.end_line();
  s.say(std::to_string(count));
  s.end_line();
  s.text +=
      s.d.one_in(6) ? broken_points(s.d, s.space(), count) : typed_points(s.d, s.space(), count);
}

void type_scheme(session_draft& s) {
  const std::string_view name = s.new_name();
  s.say("scheme");
  s.say(name);
  if (s.d.one_in(2)) s.end_line();
  s.say(s.filename_to_read(name));
  s.end_line();
}

void random_set(session_draft& s, std::string_view way) {
  const std::string_view name = s.new_name();
  s.say(way);
  s.say(name);
  if (s.d.one_in(10)) s.end_line();
  s.say(s.some_count(name));
  s.end_line();
}

void type_random(session_draft& s) { random_set(s, "random"); }

void type_random2(session_draft& s) { random_set(s, "random2"); }

struct own_arguments {
  std::string_view command;
  void (*write)(session_draft&);
};

constexpr std::array<own_arguments, 10> with_own_arguments = {{
    {"char", &type_char},
    {"dim", &type_dim},
    {"exit", &type_exit},
    {"get", &type_get},
    {"identifiers", &type_identifiers},
    {"quit", &type_quit},
    {"random", &type_random},
    {"random2", &type_random2},
    {"range", &type_range},
    {"scheme", &type_scheme},
}};

void with_identifier(session_draft& s, const command_record& c) {
  const std::string_view name = c.name;
  if (s.reach == extent::wide && makes_strands(name)) return;
  if (s.known_name(name).empty()) point_set(s);
  const std::string_view identifier = s.known_name(name);
  if (identifier.empty()) return;
  s.say(name);
  s.say(identifier);
  if (name == "del") std::erase(s.live, identifier);
  if (name == "is_uf")
    s.say(s.d.one_in(5) ? std::string(s.d.pick(bad_numbers)) : std::to_string(s.d.between(1, 4)));
  if (asks_filename(name)) {
    if (s.d.one_in(2)) s.end_line();
    s.say(s.filename_to_write(identifier));
  }
  s.end_line();
}

bool writes_own_arguments(session_draft& s, std::string_view name) {
  const auto* const own =
      std::find_if(with_own_arguments.begin(), with_own_arguments.end(),
                   [name](const own_arguments& entry) { return entry.command == name; });
  if (own == with_own_arguments.end()) return false;
  own->write(s);
  return true;
}

}  // namespace

void point_set(session_draft& s) {
  constexpr std::array ways = {&type_get, &type_scheme, &type_random, &type_random2};
  s.d.pick(ways)(s);
}

void any_command(session_draft& s) {
  const command_record& c = s.d.pick(command);
  // Sets that live longer see more.
  if (deletes_all(c.name) && s.d.one_in(2)) return;
  if (c.kind != command_kind::nothing) {
    with_identifier(s, c);
  } else if (!writes_own_arguments(s, c.name)) {
    if (deletes_all(c.name)) s.forget_sets();
    s.say(c.name);
    s.end_line();
  }
}

void identifier_alone(session_draft& s) {
  const std::string_view name = s.known_name("display");
  if (name.empty()) return point_set(s);
  s.say(name);
  s.end_line();
}

void fill_the_table(session_draft& s) {
  for (int i = 0; i < most_records + 3; ++i) {
    s.say("random");
    s.say("A" + std::to_string(i));
    s.say("1");
    s.end_line();
  }
  s.live = {"A0"sv, "A49"sv, "A50"sv};
  for (int i = 0; i < 5; ++i) any_command(s);
}

}  // namespace zep::tests
