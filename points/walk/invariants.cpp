#include "points/walk/invariants.h"

#include <ostream>
#include <string>

#include "arith/Fp.h"
#include "base/interrupt.h"
#include "base/output.h"
#include "points/walk/buchberger_moeller.h"
#include "points/walk/hilbert.h"
#include "points/walk/separators.h"

namespace zep::points {

void alpha_X(std::ostream& out, scheme& X) {
  need_bu_mo(X);
  out << "alpha = " << X.alpha << "\n" << Line;
}

void sigma_X(std::ostream& out, scheme& X) {
  need_bu_mo(X);
  out << "sigma = " << X.sigma << "\n" << Line;
}

void delta_X(std::ostream& out, scheme& X) {
  need_bu_mo(X);
  out << "delta = " << X.delta << "\n" << Line;
}

void hilb_fct(std::ostream& out, scheme& X) {
  need_bu_mo(X);
  out << "H(n) = ";
  for (int n = 0; n <= X.sigma + 1; ++n) out << hilbert_function(X, n) << " ";
  out << "\n" << Line;
}

void delta_fct(std::ostream& out, scheme& X) {
  need_bu_mo(X);
  out << "delta H(n) = ";
  for (int n = 0; n <= X.sigma + 1; ++n) out << difference_function(X, n) << " ";
  out << "\n" << Line;
}

void is_CB(std::ostream& out, scheme& X) {
  if (X.is_CB == 0) need_sep(X);
  out << (X.is_CB == 1 ? "scheme has Cayley-Bacharach property\n"
                       : "scheme has NOT Cayley-Bacharach property\n")
      << Line;
}

void groebner(std::ostream& out, scheme& X) {
  need_bu_mo(X);
  out << "Groebner basis of I(X) : \n";
  for (int i = 1; i <= X.Ix->no_of_gens(); ++i) {
    heed_interrupt();
    counter = len(i) + 4;
    out << "g" << i << " = " << groebner_element(X, i - 1) << "\n";
  }
  out << Line;
}

void order_ideal(std::ostream& out, scheme& X) {
  need_bu_mo(X);
  std::string text = "order ideal of X : \n";
  bool first = true;
  for (const monom& t : X.O) {
    if (!first) text += ", ";
    append(text, t, text_form::screen);
    first = false;
  }
  out << text << "\n" << Line;
}

}  // namespace zep::points
