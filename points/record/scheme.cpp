#include "points/record/scheme.h"

#include <algorithm>
#include <istream>
#include <ostream>

#include "base/interrupt.h"

namespace zep::points {

scheme::scheme(int ss)
    : s(std::max(ss, 0)),
      P(dim, s),
      O(s),
      separator(0, 0),
      hilb_fct(s),
      delta_fct(s),
      linres{std::vector<int>(dim), std::vector<int>(dim)} {}

polynomial groebner_element(const scheme& X, int g) { return X.Ix->gen(g, X.O); }

polynomial separator_of(const scheme& X, int i) { return combination(X.separator.row(i), X.O); }

int is_el_OO(const scheme& X, const monom& t) { return X.O_index.find(t); }

int is_el_O(const scheme& X, const monom& t) {
  const int degree = t.tot_deg();
  if (degree == 0) return 0;
  if (degree < 0 || degree > X.sigma + 1) return -1;
  const int i = X.O_index.find(t);
  if (i < 0) return -1;
  return i >= X.hilb_fct[degree - 1] && i < X.hilb_fct[degree] ? i : -1;
}

int separator_degree(const scheme& X, int i) {
  return X.O[leading_position(X.separator.row(i))].tot_deg();
}

int is_el_G(const scheme& X, const monom& t) { return X.Ix->find(t); }

int is_el_B(const scheme& X, const monom& t) { return X.B_index.find(t); }

std::istream& operator>>(std::istream& in, scheme& X) { return in >> X.P; }

void disp_point(std::ostream& out, const matrix& P, int i) {
  out << "<1";
  for (const Fp8 x : P.row(i)) out << ":" << x;
  out << ">";
}

void disp_scheme(std::ostream& out, const scheme& X) {
  for (int i = 0; i < X.s; ++i) {
    heed_interrupt();
    disp_point(out, X.P, i);
  }
}

}  // namespace zep::points
