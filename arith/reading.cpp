// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/reading.h"

#include <charconv>
#include <string>

#include "arith/division_by_zero.h"

namespace zep::arith {

namespace {

constexpr int end = std::istream::traits_type::eof();

bool is_space(int c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool is_digit(int c) { return c >= '0' && c <= '9'; }

void skip_space(std::istream& in) {
  while (is_space(in.peek())) in.get();
}

// Leaves the stream in one of the three states that the header describes.
std::istream& malformed(std::istream& in) {
  in.clear(std::ios::failbit);
  return in;
}

std::istream& stopped(std::istream& in) {
  in.clear(in.peek() == end ? std::ios::failbit | std::ios::eofbit : std::ios::failbit);
  return in;
}

std::istream& complete(std::istream& in) {
  in.clear();
  return in;
}

// Takes a sign and digits. The text is empty of digits when none followed.
bool take_number(std::istream& in, std::string& text) {
  skip_space(in);
  text.clear();
  int c = in.peek();
  if (c == '+' || c == '-') {
    if (c == '-') text += '-';
    in.get();
  }
  const std::size_t sign = text.size();
  for (c = in.peek(); is_digit(c); c = in.peek()) {
    text += static_cast<char>(c);
    in.get();
  }
  return text.size() > sign;
}

}  // namespace

std::istream& read_integer(std::istream& in, int& n) {
  if (!in) return in;
  std::string text;
  if (!take_number(in, text)) return stopped(in);
  const auto [rest, fault] = std::from_chars(text.data(), text.data() + text.size(), n);
  return fault == std::errc() ? complete(in) : malformed(in);
}

std::istream& read_rational(std::istream& in, Rational& r) {
  if (!in) return in;
  std::string text;
  if (!take_number(in, text)) return stopped(in);
  r = Integer(text, 10);
  if (in.peek() == '/') {
    in.get();
    if (!take_number(in, text)) return stopped(in);
    const Integer denominator(text, 10);
    if (denominator == 0) throw division_by_zero{"Fp"};
    r /= denominator;
  }
  return complete(in);
}

}  // namespace zep::arith
