// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/monom.h"

#include <algorithm>
#include <ostream>
#include <type_traits>

#include "arith/Fp.h"

namespace zep::arith {

static_assert(std::is_trivially_copyable_v<monom>);

namespace {

int common_slots(const monom& a, const monom& b) { return std::min(a.dim(), b.dim()); }

bool equal_below(const monom& a, const monom& b, int slots) {
  for (int i = 0; i < slots; ++i) {
    if (a.exp(i) != b.exp(i)) return false;
  }
  return true;
}

}  // namespace

monom& monom::operator*=(const monom& b) {
  for (int i = 0; i < common_slots(*this, b); ++i) set_exp(i, exp(i) + b.exp(i));
  return *this;
}

monom& monom::operator/=(const monom& b) {
  for (int i = 0; i < common_slots(*this, b); ++i) set_exp(i, exp(i) - b.exp(i));
  return *this;
}

bool operator==(const monom& a, const monom& b) { return equal_below(a, b, common_slots(a, b)); }

bool aff_eq(const monom& a, const monom& b) { return equal_below(a, b, proj - 1); }

monom operator*(const monom& a, const monom& b) {
  monom product = a;
  return product *= b;
}

monom operator/(const monom& a, const monom& b) {
  monom quotient = a;
  return quotient /= b;
}

monom lcm(const monom& a, const monom& b) {
  monom m = a;
  for (int i = 0; i < common_slots(a, b); ++i) m.set_exp(i, std::max(a.exp(i), b.exp(i)));
  return m;
}

monom gcd(const monom& a, const monom& b) {
  monom m = a;
  for (int i = 0; i < common_slots(a, b); ++i) m.set_exp(i, std::min(a.exp(i), b.exp(i)));
  return m;
}

monom variable(int i) {
  monom m;
  m.set_exp(i, 1);
  return m;
}

monom projective_variable(int i) {
  monom m;
  prj(m);
  m.set_exp(i, 1);
  return m;
}

int sign(const monom& m) {
  for (int i = 0; i < m.dim(); ++i) {
    if (m.exp(i) != 0) return 1;
  }
  return 0;
}

int len(const monom& m) {
  int width = 0;
  for (int i = 0; i < m.dim(); ++i) {
    if (m.exp(i) == 1) width += 1;
    if (m.exp(i) > 1) width += len(static_cast<int>(m.exp(i))) + 2;
  }
  return width;
}

std::size_t monom_hash::operator()(const monom& m) const {
  // Multiplication by an odd constant with well mixed bits (2^64 over the golden ratio), and the
  // high half folded down so that the low bits depend on every exponent.
  std::uint64_t h = 0;
  for (int i = 0; i < proj - 1; ++i) {
    h = (h ^ static_cast<std::uint16_t>(m.exp(i))) * 0x9E3779B97F4A7C15U;
    h ^= h >> 32;
  }
  return static_cast<std::size_t>(h);
}

char* write_variables(char* to, const monom& m, text_form form) {
  for (int i = 0; i < m.dim(); ++i) {
    const int e = m.exp(i);
    if (e == 0) continue;
    *to++ = ring_data::names[i];
    if (e == 1) continue;
    if (form == text_form::screen) *to++ = '^';
    to = write_number(to, e);
  }
  return to;
}

void append(std::string& text, const monom& m, text_form form) {
  std::array<char, longest_monom> variables{};
  text.append(variables.data(), write_variables(variables.data(), m, form));
  if (sign(m) == 0) text += '1';
}

std::ostream& operator<<(std::ostream& out, const monom& m) {
  std::string text;
  append(text, m, text_form::screen);
  return out << text;
}

void put(std::ostream& out, const monom& m) {
  std::string text;
  append(text, m, text_form::file);
  out << text;
}

}  // namespace zep::arith
