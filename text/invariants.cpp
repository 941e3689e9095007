// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/invariants.h"

#include <ostream>
#include <string>

#include "base/output.h"
#include "text/numbered_polynomials.h"

namespace zep::text {

void alpha_X(std::ostream& out, const hilbert_numbers& H) {
  out << "alpha = " << H.alpha << "\n" << Line;
}

void sigma_X(std::ostream& out, const hilbert_numbers& H) {
  out << "sigma = " << H.sigma << "\n" << Line;
}

void delta_X(std::ostream& out, const hilbert_numbers& H) {
  out << "delta = " << H.delta << "\n" << Line;
}

void hilb_fct(std::ostream& out, const hilbert_numbers& H) {
  out << "H(n) = ";
  for (int n = 0; n <= H.sigma + 1; ++n) out << hilbert_function(H, n) << " ";
  out << "\n" << Line;
}

void delta_fct(std::ostream& out, const hilbert_numbers& H) {
  out << "delta H(n) = ";
  for (int n = 0; n <= H.sigma + 1; ++n) out << difference_function(H, n) << " ";
  out << "\n" << Line;
}

void order_ideal(std::ostream& out, const points::order_ideal& X) {
  std::string text = "order ideal of X : \n";
  bool first = true;
  for (const monom& t : X.O) {
    if (!first) text += ", ";
    append(text, t, text_form::screen);
    first = false;
  }
  out << text << "\n" << Line;
}

void groebner(std::ostream& out, const points::order_ideal& X) {
  out << "Groebner basis of I(X) : \n";
  show_numbered(out, "g", X.Ix.no_of_gens(), [&](int g) { return groebner_element(X, g); });
  out << Line;
}

void separators(std::ostream& out, const points::order_ideal& X) {
  out << "separators of X : \n";
  show_numbered(out, "f", X.s(), [&](int i) { return separator_of(X, i); });
  out << Line;
}

void is_CB(std::ostream& out, bool has_property) {
  out << (has_property ? "scheme has Cayley-Bacharach property\n"
                       : "scheme has NOT Cayley-Bacharach property\n")
      << Line;
}

void is_ar_Go(std::ostream& out, bool is_gorenstein) {
  out << (is_gorenstein ? "scheme is arithmetically Gorenstein\n"
                        : "scheme is NOT arithmetically Gorenstein\n")
      << Line;
}

}  // namespace zep::text
