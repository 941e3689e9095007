// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/session/input.h"

#include <istream>
#include <ostream>
#include <streambuf>

#include "arith/reading.h"

namespace zep::front {

namespace {

constexpr int end = std::istream::traits_type::eof();

bool is_space(int c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

}  // namespace

int input::peek() {
  const int c = in_.peek();
  // An end is no fault: what comes next finds the stream as good as before.
  if (c == end) in_.clear();
  return c;
}

std::string input::word(int length) {
  while (is_space(peek())) in_.get();
  std::string text;
  for (int c = peek(); c != end && !is_space(c); c = peek()) {
    if (length != any_length && static_cast<int>(text.size()) == length) break;
    text += static_cast<char>(c);
    in_.get();
  }
  if (text.empty()) throw end_of_input();
  return text;
}

// Throws unless the number that was read last is a good one; the stream is usable afterwards.
void input::settle() {
  if (in_) return;
  const bool ended = in_.eof();
  in_.clear();
  if (ended) throw end_of_input();
  throw malformed_number();
}

int input::integer() {
  int n = 0;
  read_integer(in_, n);
  settle();
  return n;
}

Fp8 input::coefficient() {
  Fp8 x;
  in_ >> x;
  settle();
  return x;
}

int input::integer_or(int otherwise) {
  try {
    return integer();
  } catch (const malformed_number&) {
    return otherwise;
  }
}

void input::skip_character() {
  if (peek() == end) throw end_of_input();
  in_.get();
}

bool input::at_line_end() {
  const int c = peek();
  if (c == end) throw end_of_input();
  return c == '\n';
}

bool input::line_goes_on() {
  int c = peek();
  for (; is_space(c) && c != '\n'; c = peek()) in_.get();
  return c != end && c != '\n';
}

void input::copy_rest_of_line(std::ostream& out) {
  for (int c = peek(); c != end && c != '\n'; c = peek()) out.put(static_cast<char>(in_.get()));
}

void input::forget() {
  in_.clear();
  in_.sync();
  while (in_.rdbuf()->in_avail() > 0) in_.get();
}

void input::drop_rest_of_line() {
  for (int c = peek(); c != end && c != '\n'; c = peek()) in_.get();
}

}  // namespace zep::front
