// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/robustness/session_draft.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "tests/robustness/working_folder.h"

namespace zep::tests {

namespace {

using namespace std::string_view_literals;

// The sets named first are small, whatever becomes of the session, so that what walks over subsets
// or makes linear strands of them ends soon. The others may have some more points.
constexpr std::array small_names = {"A"sv, "B"sv,  "C"sv, "x1"sv,  "abcdefghijkl"sv,
                                    "0"sv, "Zz"sv, "7"sv, "list"sv};
constexpr std::array large_names = {"L"sv, "Large"sv, "Labcdefghijk"sv};
constexpr int large_mark = 'L';

constexpr std::array small_results = {"result"sv, "second.txt"sv, "\xc3\xa4"sv, "r"sv,
                                      "space.pts"sv};
constexpr std::array large_results = {"Large"sv, "Large.pts"sv};

bool walks_over_subsets(std::string_view name) { return name == "is_duf" || name == "is_uf"; }

bool is_large(std::string_view name) { return name.front() == large_mark; }

}  // namespace

bool makes_strands(std::string_view name) {
  return name.starts_with("putlin") || (name.starts_with("lin") && name != "lingenpos");
}

void session_draft::say(std::string_view word) {
  if (!text.empty() && text.back() != '\n') text += d.one_in(20) ? " \t" : " ";
  text += word;
}

void session_draft::end_line() {
  if (d.one_in(30)) text += ' ';
  text += line_end;
  if (d.one_in(30)) text += line_end;
}

int session_draft::new_dimension() {
  switch (reach) {
    case extent::low:
      return d.between(2, 3);
    case extent::middle:
      return d.between(2, 5);
    default:
      // Beyond 26 the names are asked for until the input ends.
      return d.one_in(15) ? 27 : d.between(2, 26);
  }
}

std::string_view session_draft::new_name() {
  const bool large = !mutated && d.one_in(4);
  std::string_view name = large ? d.pick(large_names) : d.pick(small_names);
  // Mostly one that is free.
  for (int i = 0; i < 5 && std::find(live.begin(), live.end(), name) != live.end(); ++i) {
    name = large ? d.pick(large_names) : d.pick(small_names);
  }
  if (std::find(live.begin(), live.end(), name) == live.end()) live.push_back(name);
  return name;
}

std::string_view session_draft::known_name(std::string_view command_name) {
  const bool small_only =
      walks_over_subsets(command_name) || (makes_strands(command_name) && reach != extent::low);
  std::vector<std::string_view> fitting;
  std::copy_if(live.begin(), live.end(), std::back_inserter(fitting),
               [&](std::string_view n) { return !small_only || !is_large(n); });
  return fitting.empty() ? ""sv : d.pick(fitting);
}

int session_draft::count_for(std::string_view set_name) {
  if (reach == extent::wide) return d.between(1, is_large(set_name) ? 10 : 6);
  if (!is_large(set_name)) return d.between(1, 12);
  return reach == extent::low && d.one_in(8) ? 60 : d.between(10, 25);
}

std::string session_draft::some_count(std::string_view set_name) {
  if (!d.one_in(10)) return std::to_string(count_for(set_name));
  constexpr std::array bad_counts = {"0"sv, "-1"sv, "-2000000000"sv, "99999999999"sv, "x"sv, "+"sv};
  if (reach == extent::low && d.one_in(3)) return "2000000000";
  return std::string(d.pick(bad_counts));
}

std::string_view session_draft::filename_to_read(std::string_view set_name) {
  switch (d.number_below(9)) {
    case 0:
      return filename_to_write(set_name);
    case 1:
      return d.one_in(5) ? point_file::fatal : d.pick(unwritable);
    case 2:
      return d.pick(point_file::bad);
    case 3:
    case 4:
      return d.pick(point_file::odd);
    default:
      return d.pick(point_file::good);
  }
}

std::string_view session_draft::filename_to_write(std::string_view set_name) {
  if (d.one_in(10)) return d.pick(unwritable);
  return is_large(set_name) ? d.pick(large_results) : d.pick(small_results);
}

}  // namespace zep::tests
