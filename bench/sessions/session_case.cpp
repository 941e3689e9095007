// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/sessions/session_case.h"

#include <array>
#include <fstream>
#include <set>
#include <stdexcept>
#include <vector>

#include "bench/irregular_numbers.h"

namespace zep::tests {

namespace {

constexpr const char* putsep = "putsep A\n/dev/null\n";
constexpr const char* all_results =
    "gbasis A\nsep A\nhilbertfn A\nmin A\nsocle A\nbetamat A\nomega A\nlinres A\n";

constexpr std::array cases = {
    session_case{"help", "help\n", 0, 0, 0, arrangement::none},
    session_case{"small", all_results, 5, 3, 101},
    session_case{"small", all_results, 20, 3, 101},
    session_case{"small", all_results, 50, 3, 101},
    session_case{"gbasis", "gbasis A\n", 100, 3, 101},
    session_case{"gbasis", "gbasis A\n", 200, 3, 101},
    session_case{"gbasis", "gbasis A\n", 500, 3, 101},
    session_case{"gbasis", "gbasis A\n", 1000, 3, 101},
    session_case{"gbasis", "gbasis A\n", 1000, 5, 101},
    session_case{"gbasis", "gbasis A\n", 2000, 2, 251},
    session_case{"gbasis", "gbasis A\n", 2000, 3, 101},
    session_case{"sep", "sep A\n", 1000, 3, 101},
    session_case{"putsep", putsep, 100, 3, 101},
    session_case{"putsep", putsep, 200, 3, 101},
    session_case{"putsep", putsep, 500, 3, 101},
    session_case{"putsep", putsep, 1000, 3, 101},
    session_case{"putsep", putsep, 5000, 3, 251, arrangement::irregular, true},
    session_case{"bumo", "bumo A\n", 500, 3, 101},
    session_case{"bumo+min", "bumo A\nmin A\n", 500, 3, 101},
    session_case{"bumo+socle", "bumo A\nsocle A\n", 500, 3, 101},
    session_case{"omega", "omega A\n", 100, 3, 101},
    session_case{"omega", "omega A\n", 200, 3, 101},
    session_case{"omega", "omega A\n", 500, 3, 101},
    session_case{"omega", "omega A\n", 100, 4, 101},
    session_case{"omega", "omega A\n", 200, 4, 101},
    session_case{"linres", "linres A\n", 100, 3, 101},
    session_case{"linres", "linres A\n", 200, 3, 101},
    session_case{"linres", "linres A\n", 500, 3, 101},
    session_case{"linres", "linres A\n", 100, 4, 101},
    session_case{"linres", "linres A\n", 200, 4, 101},
    session_case{"linsyz", "linsyz A\n", 100, 3, 101},
    session_case{"linres", "linres A\n", 14, 9, 101},
    session_case{"linres", "linres A\n", 16, 10, 101},
    session_case{"linres", "linres A\n", 11, 10, 101},
    session_case{"linres", "linres A\n", 180, 6, 5},
    session_case{"linsyz", "linsyz A\n", 14, 9, 101},
    session_case{"linid", "linid A\n", 500, 5, 101},
    session_case{"linom", "linom A\n", 500, 5, 101},
    session_case{"linid", "linid A\n", 5000, 5, 101, arrangement::irregular, true},
    session_case{"linom", "linom A\n", 5000, 5, 101, arrangement::irregular, true},
    session_case{"linid", "linid A\n", 100, 10, 101, arrangement::irregular, true},
    session_case{"omega", "omega A\n", 500, 5, 101},
    session_case{"omega", "omega A\n", 1000, 10, 101},
    session_case{"min", "min A\n", 2000, 10, 101},
    session_case{"min", "min A\n", 5000, 10, 101, arrangement::irregular, true},
    session_case{"socle", "socle A\n", 5000, 10, 101, arrangement::irregular, true},
    // delta is 8, and all of the 3108105 choices of 8 separators are independent.
    session_case{"is_duf", "is_duf A\n", 28, 19, 251, arrangement::normal_curve},
};

// The affine coordinates of a point.
using coordinates = std::vector<int>;

// Requires that the space has as many.
std::vector<coordinates> irregular_points(const session_case& timed) {
  irregular_numbers numbers(1);
  std::set<coordinates> seen;
  std::vector<coordinates> points;
  coordinates point(static_cast<std::size_t>(timed.n));
  while (static_cast<int>(points.size()) < timed.points) {
    for (int& x : point) x = numbers.below(timed.p);
    if (seen.insert(point).second) points.push_back(point);
  }
  return points;
}

std::vector<coordinates> points_on_normal_curve(const session_case& timed) {
  std::vector<coordinates> points;
  for (int t = 1; t <= timed.points; ++t) {
    coordinates point;
    int power = 1;
    for (int j = 0; j < timed.n; ++j) {
      power = power * t % timed.p;
      point.push_back(power);
    }
    points.push_back(point);
  }
  return points;
}

void write_points(std::ostream& out, const session_case& timed) {
  const auto points = timed.kind == arrangement::irregular ? irregular_points(timed)
                                                           : points_on_normal_curve(timed);
  out << timed.n + 1 << "\n" << points.size() << "\n";
  for (const coordinates& point : points) {
    out << "1";
    for (const int x : point) out << " " << x;
    out << "\n";
  }
}

void write_session(std::ostream& out, const session_case& timed) {
  if (timed.kind != arrangement::none) {
    out << "quiet\nchar " << timed.p << "\ndim " << timed.n << "\nscheme A " << points_file << "\n";
  }
  out << timed.commands << "quit\n";
}

template <class Write>
void write_file(const std::filesystem::path& file, const session_case& timed, Write write_to) {
  std::ofstream out(file);
  write_to(out, timed);
  if (!out.flush()) throw std::runtime_error("can't write " + file.string());
}

}  // namespace

std::span<const session_case> session_cases() { return cases; }

std::string name_of(const session_case& timed) {
  std::string name = timed.what;
  if (timed.kind == arrangement::none) return name;
  name += " " + std::to_string(timed.points);
  name += " P^" + std::to_string(timed.n);
  return name + " F_" + std::to_string(timed.p);
}

void write_case(const session_case& timed, const std::filesystem::path& folder) {
  if (timed.kind != arrangement::none) write_file(folder / points_file, timed, write_points);
  write_file(folder / session_file, timed, write_session);
}

}  // namespace zep::tests
