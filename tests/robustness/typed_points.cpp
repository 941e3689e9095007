// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/robustness/typed_points.h"

#include <array>
#include <vector>

namespace zep::tests {

namespace {

constexpr std::array no_numbers = {"x",   "--1", "1/",  "/2", ":",
                                   "1:2", "1.5", "1e3", "+",  "\xc3\xa9"};

std::string fraction(dice& d, int characteristic) {
  const int numerator = d.between(-20, 20);
  // Only once in a long while 0 in the field.
  int denominator = d.between(1, 2 * characteristic);
  if (denominator % characteristic == 0 && !d.one_in(4)) denominator = 1;
  return std::to_string(numerator) + "/" + std::to_string(denominator);
}

std::string coordinate(dice& d, int characteristic) {
  switch (d.number_below(12)) {
    case 0:
      return fraction(d, characteristic);
    case 1:
      return std::to_string(d.between(-300, 300));
    case 2:
      return "+" + std::to_string(d.number_below(10));
    case 3:
      return "123456789012345678901234567890";
    default:
      return std::to_string(d.number_below(6));
  }
}

std::string first_coordinate(dice& d, int characteristic) {
  switch (d.number_below(16)) {
    case 0:
      return "0";
    case 1:
      return std::to_string(characteristic);
    case 2:
      return fraction(d, characteristic);
    case 3:
      return "-3";
    case 4:
      return "2";
    default:
      return "1";
  }
}

std::string separator(dice& d) {
  constexpr std::array separators = {" ", " ", " ", " ", "  ", "\t", "\n", " \v", "\f"};
  return d.pick(separators);
}

std::string point(dice& d, const typed_space& space) {
  std::string text = first_coordinate(d, space.characteristic);
  text += d.one_in(3) ? ":" : separator(d);
  for (int j = 0; j < space.dimension; ++j) {
    if (j > 0) text += separator(d);
    text += coordinate(d, space.characteristic);
  }
  return text;
}

std::vector<std::string> several_points(dice& d, const typed_space& space, int count) {
  std::vector<std::string> points;
  for (int i = 0; i < count; ++i) {
    const bool repeated = i > 0 && d.one_in(30);
    points.push_back(repeated ? d.pick(points) : point(d, space));
  }
  return points;
}

std::string joined(dice& d, const typed_space& space, const std::vector<std::string>& points) {
  const bool on_one_line = d.one_in(3);
  std::string text;
  for (const std::string& p : points) {
    if (!text.empty()) text += on_one_line ? " " : space.line_end;
    text += p;
  }
  return text + space.line_end;
}

}  // namespace

std::string typed_points(dice& d, const typed_space& space, int count) {
  return joined(d, space, several_points(d, space, count));
}

std::string broken_points(dice& d, const typed_space& space, int count) {
  std::vector<std::string> points = several_points(d, space, count + d.between(-1, 1));
  if (!points.empty() && !d.one_in(3)) {
    std::string& broken = points[d.number_below(static_cast<int>(points.size()))];
    const int position = d.number_below(static_cast<int>(broken.size()));
    broken.insert(position, std::string(" ") + d.pick(no_numbers) + " ");
  }
  return joined(d, space, points);
}

}  // namespace zep::tests
