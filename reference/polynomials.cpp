// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/polynomials.h"

#include <utility>
#include <vector>

#include "arith/ring.h"

namespace zep::reference {

bool Zn_order_lt(const monom& a, const monom& b) {
  bool smaller = false;
  for (int i = 0; i < a.dim(); ++i) {
    if (a.exp(i) > b.exp(i)) return false;
    smaller = smaller || a.exp(i) < b.exp(i);
  }
  return smaller;
}

int is_prj(const polynomial& a) { return a.term(0).exp(proj - 1); }

polynomial Lf(const polynomial& f) {
  std::vector<monom> term;
  std::vector<Fp8> coef;
  const int degree = f.term(0).tot_deg();
  for (int i = 0; sign(f) != 0 && i < f.no_of_monoms() && f.term(i).tot_deg() == degree; ++i) {
    term.push_back(f.term(i));
    coef.push_back(f.coef(i));
  }
  return {std::move(term), std::move(coef)};
}

}  // namespace zep::reference
