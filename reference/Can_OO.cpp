// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/Can_OO.h"

#include <algorithm>
#include <cstddef>

namespace zep::reference {

namespace {

// The first monomial of OO equal to t; OO.end() if there is none.
auto match(std::span<const monom> OO, const monom& t) { return std::find(OO.begin(), OO.end(), t); }

// Position of the first term of f outside the order ideal that can be replaced, or -1.
int first_to_replace(const polynomial& f, std::span<const monom> OO, const order_ideal& X) {
  for (int i = 0; sign(f) != 0 && i < f.no_of_monoms(); ++i) {
    if (is_el_OO(X, f.term(i)) < 0 && match(OO, f.term(i)) != OO.end()) return i;
  }
  return -1;
}

void replace(polynomial& f, int i, std::span<const monom> OO, std::span<const polynomial> Can) {
  const monom t = f.term(i);
  const Fp8 c = f.coef(i);
  const auto l = match(OO, t);
  monom u = t;
  u /= *l;
  polynomial form = Can[static_cast<std::size_t>(l - OO.begin())];
  form *= u;
  form *= c;
  f -= polynomial(t, c);
  f += form;
}

}  // namespace

int is_el_O(const order_ideal& X, const monom& t) {
  const int degree = t.tot_deg();
  if (degree == 0) return 0;
  if (degree < 0 || degree > X.H.sigma + 1) return -1;
  const int i = is_el_OO(X, t);
  return i >= hilbert_function(X.H, degree - 1) && i < hilbert_function(X.H, degree) ? i : -1;
}

int check(const polynomial& f, const monom& t) {
  for (int i = 0; sign(f) != 0 && i < f.no_of_monoms(); ++i) {
    if (f.term(i) == t) return i;
  }
  return -1;
}

polynomial& Can_OO(polynomial& f, std::span<const monom> OO, std::span<const polynomial> Can,
                   const order_ideal& X) {
  // Downwards, every monomial of OO is met once at the most.
  for (std::size_t left = OO.size(); left > 0; --left) {
    const int i = first_to_replace(f, OO, X);
    if (i < 0) break;
    replace(f, i, OO, Can);
  }
  return f;
}

}  // namespace zep::reference
