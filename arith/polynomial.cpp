// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/polynomial.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

#include "arith/ordering.h"
#include "base/output.h"
#include "base/paranoid.h"

namespace zep::arith {

namespace {

// a + b or a - b for b not zero, merged under the affine order.
template <class Sign>
void merge(std::vector<monom>& term, std::vector<Fp8>& coef, const polynomial& a,
           const polynomial& b, Sign signed_coef) {
  term.reserve(static_cast<std::size_t>(a.no_of_monoms()) +
               static_cast<std::size_t>(b.no_of_monoms()));
  coef.reserve(term.capacity());
  const auto append = [&](const monom& m, Fp8 c) {
    term.push_back(m);
    coef.push_back(c);
  };
  int i = 0;
  int j = 0;
  while (i < a.no_of_monoms() && j < b.no_of_monoms()) {
    if (monom_ordering_lt(a.term(i), b.term(j))) {
      append(b.term(j), signed_coef(b.coef(j)));
      ++j;
    } else if (monom_ordering_lt(b.term(j), a.term(i))) {
      append(a.term(i), a.coef(i));
      ++i;
    } else {
      const Fp8 sum = a.coef(i) + signed_coef(b.coef(j));
      if (sum != 0) append(a.term(i), sum);
      ++i;
      ++j;
    }
  }
  for (; i < a.no_of_monoms(); ++i) append(a.term(i), a.coef(i));
  for (; j < b.no_of_monoms(); ++j) append(b.term(j), signed_coef(b.coef(j)));
}

template <class Sign>
polynomial merged(const polynomial& a, const polynomial& b, Sign signed_coef) {
  std::vector<monom> term;
  std::vector<Fp8> coef;
  if (sign(a) == 0) {
    for (int j = 0; j < b.no_of_monoms(); ++j) {
      term.push_back(b.term(j));
      coef.push_back(signed_coef(b.coef(j)));
    }
  } else {
    merge(term, coef, a, b, signed_coef);
  }
  return {std::move(term), std::move(coef)};
}

// Room for a term with its sign.
using term_text = std::array<char, 3 + longest_number + longest_monom>;

// Writes the coefficient without its sign, then the monomial; a 1 where neither shows.
char* write_term(char* to, const monom& m, Fp8 absolute, text_form form) {
  char* const start = to;
  if (absolute != 1) to = write_number(to, absolute.value());
  to = write_variables(to, m, form);
  if (to == start) *to++ = '1';
  return to;
}

char* write_text(char* to, std::string_view text) {
  return std::copy(text.begin(), text.end(), to);
}

}  // namespace

polynomial::polynomial(int c) : term_(1), coef_(1) { coef_[0] = c; }

polynomial::polynomial(const monom& m, Fp8 c) : term_{c == 0 ? monom() : m}, coef_{c} {}

polynomial::polynomial(std::vector<monom> terms, std::vector<Fp8> coefs)
    : term_(std::move(terms)), coef_(std::move(coefs)) {
  if (term_.empty()) *this = polynomial(0);
  ensure_terms();
}

// Sums compare affine parts only, so these tell.
void polynomial::ensure_terms() const {
  ensure("a polynomial has as many coefficients as terms",
         [&] { return !term_.empty() && term_.size() == coef_.size(); });
  ensure("the terms of a polynomial descend", [&] {
    return std::adjacent_find(term_.begin(), term_.end(), [](const monom& a, const monom& b) {
             return !monom_ordering_lt(b, a);
           }) == term_.end();
  });
  ensure("no coefficient of several is zero", [&] {
    return term_.size() == 1 || std::find(coef_.begin(), coef_.end(), Fp8(0)) == coef_.end();
  });
}

polynomial& polynomial::operator=(int c) {
  term_.resize(1);
  term_[0] = monom::exponent{0};
  coef_.resize(1);
  coef_[0] = c;
  return *this;
}

polynomial& polynomial::operator+=(const polynomial& b) {
  if (sign(b) == 0) return *this;
  return *this = merged(*this, b, [](Fp8 c) { return c; });
}

polynomial& polynomial::operator-=(const polynomial& b) {
  if (sign(b) == 0) return *this;
  return *this = merged(*this, b, [](Fp8 c) { return -c; });
}

polynomial& polynomial::operator*=(Fp8 c) {
  if (c == 0) return *this = 0;
  for (Fp8& coef : coef_) coef *= c;
  drop_zero_terms();
  ensure_terms();
  return *this;
}

void polynomial::negate() {
  for (Fp8& coef : coef_) coef = -coef;
}

void polynomial::drop_zero_terms() {
  if (std::find(coef_.begin(), coef_.end(), Fp8(0)) == coef_.end()) return;
  std::size_t kept = 0;
  for (std::size_t i = 0; i < coef_.size(); ++i) {
    if (coef_[i] == 0) continue;
    term_[kept] = term_[i];
    coef_[kept++] = coef_[i];
  }
  if (kept == 0) {
    *this = 0;
    return;
  }
  term_.resize(kept);
  coef_.resize(kept);
}

polynomial& polynomial::operator*=(const monom& m) {
  if (sign(*this) == 0) return *this;
  for (monom& term : term_) term *= m;
  ensure_terms();
  return *this;
}

polynomial operator+(const polynomial& a) { return a; }

polynomial operator-(polynomial a) {
  a.negate();
  return a;
}

polynomial operator+(polynomial a, const polynomial& b) { return std::move(a += b); }

polynomial operator-(polynomial a, const polynomial& b) { return std::move(a -= b); }

polynomial operator*(polynomial a, Fp8 c) { return std::move(a *= c); }

polynomial operator*(const polynomial& a, const polynomial& b) {
  polynomial product(0);
  if (sign(a) == 0 || sign(b) == 0) return product;
  for (int j = 0; j < b.no_of_monoms(); ++j) {
    polynomial shifted = a;
    shifted *= b.term(j);
    shifted *= b.coef(j);
    product += shifted;
  }
  return product;
}

bool operator==(const polynomial& a, const polynomial& b) {
  if (a.no_of_monoms() != b.no_of_monoms()) return false;
  for (int i = 0; i < a.no_of_monoms(); ++i) {
    if (a.term(i) != b.term(i) || a.coef(i) != b.coef(i)) return false;
  }
  return true;
}

bool operator<(const polynomial& a, const polynomial& b) { return a.term(0) < b.term(0); }
bool operator>(const polynomial& a, const polynomial& b) { return a.term(0) > b.term(0); }

int sign(const polynomial& a) { return std::abs(sign(a.coef(0))); }

void hom(polynomial& h, const polynomial& f) {
  polynomial result = f;
  const int degree = f.term(0).tot_deg();
  for (monom& term : result.term_) {
    prj(term);
    term.set_exp(proj - 1, degree - term.tot_deg());
  }
  h = std::move(result);
}

void show(std::ostream& out, const polynomial& f, int column) {
  if (sign(f) == 0) {
    out << " 0";
    return;
  }
  std::string text;
  term_text term{};
  for (int i = 0; i < f.no_of_monoms(); ++i) {
    const bool first = i == 0;
    const bool negative = sign(f.coef(i)) < 1;
    char* end = term.data();
    if (!first) {
      end = write_text(end, negative ? " - " : " + ");
    } else if (negative) {
      end = write_text(end, "- ");
    }
    end = write_term(end, f.term(i), abs(f.coef(i)), text_form::screen);
    const int width = static_cast<int>(end - term.data());
    if (first || column + width < LL - 1) {
      column += width;
    } else {
      text += '\n';
      column = width;
    }
    text.append(term.data(), end);
  }
  out << text;
}

std::ostream& operator<<(std::ostream& out, const polynomial& f) {
  show(out, f, 0);
  return out;
}

void polynomial::put(std::ostream& out) const {
  if (sign(*this) == 0) {
    out << "0";
    return;
  }
  std::string text;
  term_text term{};
  for (int i = 0; i < no_of_monoms(); ++i) {
    char* end = term.data();
    if (sign(coef(i)) < 1) {
      *end++ = '-';
    } else if (i > 0) {
      *end++ = '+';
    }
    end = write_term(end, this->term(i), abs(coef(i)), text_form::file);
    text.append(term.data(), end);
  }
  out << text;
}

}  // namespace zep::arith
