// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/robustness/damage.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "front/session/identifiers.h"

namespace zep::tests {

namespace {

using namespace std::string_view_literals;

bool is_digit(char c) { return c >= '0' && c <= '9'; }

bool is_alphanumeric(char c) {
  return is_digit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

void mutate(dice& d, std::string& text) {
  constexpr auto bytes = "\0\x01\x7f\x80\xff!-+:.azAZ_"sv;
  for (int i = d.between(1, 8); i > 0 && !text.empty(); --i) {
    const std::size_t position = d.number_below(static_cast<int>(text.size()));
    const char old = text[position];
    if (old == '\n' || old == ' ' || old == '-' || is_digit(old)) continue;
    if (d.one_in(3)) {
      text.erase(position, 1);
    } else if (d.one_in(2)) {
      text.insert(position, 1, d.pick(bytes));
    } else {
      text[position] = d.pick(bytes);
    }
  }
}

void cut(dice& d, std::string& text) {
  if (text.empty()) return;
  constexpr std::size_t most_digits = 3;
  text.resize(d.number_below(static_cast<int>(text.size())));
  const std::size_t number = text.find_last_not_of("0123456789") + 1;
  text.resize(std::min(text.size(), number + most_digits));
}

void keep_to_the_folder(std::string& text) {
  int offset = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool blank = c == ' ' || (c >= '\t' && c <= '\r');
    const bool inside = i > 0 && is_alphanumeric(text[i - 1]) && offset != identifier_length;
    if (c == '/' && !inside) text[i] = '_';
    offset = blank ? 0 : offset + 1;
  }
}

}  // namespace zep::tests
