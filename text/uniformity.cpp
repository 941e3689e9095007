// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/uniformity.h"

#include <ostream>

#include "base/output.h"

namespace zep::text {

namespace {

// Leaves the line open for the verdict.
void show_dependence(std::ostream& out, const dependence& found) {
  if (!found) return;
  out << "\nlinear dependence between ";
  for (const int i : *found) out << "f" << i + 1 << ", ";
  out << "\ntherefore ";
}

}  // namespace

void disp_beta_matrix(std::ostream& out, const leading_forms& forms) {
  out << "the beta_matrix with respect to the following separators :\n";
  for (const int i : forms.basis) out << "f" << i + 1 << ", ";
  out << "\n" << forms.beta << Line;
}

void is_delta_uf(std::ostream& out, const dependence& found, bool counted) {
  show_dependence(out, found);
  // Ends the line of the countdown, and of "therefore " as well.
  if (counted) out << "\n";
  out << (found ? "scheme has NOT delta uniform property\n" : "scheme has delta uniform property\n")
      << Line;
}

void is_delta_uf_for_delta_one(std::ostream& out, bool is_CB) {
  if (is_CB) {
    out << "scheme has Cayley-Bacharach property\n"
        << "since delta = 1, scheme has also delta uniform property\n"
        << "and is even 2-uniform\n";
  } else {
    out << "scheme has NOT Cayley-Bacharach property\n"
        << "hence it cannot have delta uniform property\n";
  }
  out << Line;
}

void is_n_uf(std::ostream& out, const dependence& found, int n) {
  show_dependence(out, found);
  out << (found ? "scheme has NOT " : "\nscheme has ") << n << "-uniform property\n" << Line;
}

void refuse_n_not_positive(std::ostream& out) {
  out << "n-unifomity only defined for n > 0 !!!\n" << Line;
}

void refuse_n_above_delta(std::ostream& out) {
  out << "sorry, but checking n-unifomity for n > delta is not supported yet\n" << Line;
}

}  // namespace zep::text
