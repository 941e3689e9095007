#include "points/walk/uniformity.h"

#include <ostream>

#include "base/output.h"
#include "base/reporter.h"
#include "linalg/dependent_subset.h"
#include "points/walk/beta_matrix.h"
#include "points/walk/buchberger_moeller.h"
#include "points/walk/separators.h"

namespace zep::points {

namespace {

void announce_advances_to(std::ostream& out, int last, int s) {
  if (verbose != 0) out << "[" << s - last + 1 << "]" << std::flush;
}

// Walks over the k-subsets, counting down, and reports a dependent one. True if there is none.
bool every_subset_is_independent(std::ostream& out, const scheme& X, int k) {
  if (k == 0) return true;
  const auto dependent = first_dependent_subset(
      *X.beta_matrix, k, [&](int last) { announce_advances_to(out, last, X.s); });
  if (!dependent) return true;
  out << "\nlinear dependence between ";
  for (const int i : *dependent) out << "f" << i + 1 << ", ";
  out << "\ntherefore ";
  return false;
}

void is_delta_uf_for_delta_one(std::ostream& out, const scheme& X) {
  if (X.is_CB == 0) {
    out << "scheme has NOT Cayley-Bacharach property\n"
        << "hence it cannot have delta uniform property\n";
  } else {
    out << "scheme has Cayley-Bacharach property\n"
        << "since delta = 1, scheme has also delta uniform property\n"
        << "and is even 2-uniform\n";
  }
  out << Line;
}

}  // namespace

void is_delta_uf(std::ostream& out, scheme& X) {
  need_sep(X);
  if (X.delta == 1) {
    is_delta_uf_for_delta_one(out, X);
    return;
  }
  beta_matrix(X);
  const bool uniform = every_subset_is_independent(out, X, X.delta);
  // Ends the line of the countdown, and of "therefore " as well.
  if (verbose != 0) out << "\n";
  out << (uniform ? "scheme has delta uniform property\n"
                  : "scheme has NOT delta uniform property\n")
      << Line;
}

void is_n_uf(std::ostream& out, scheme& X, int n) {
  if (n <= 0) {
    out << "n-unifomity only defined for n > 0 !!!\n" << Line;
    return;
  }
  need_bu_mo(X);
  if (n == X.delta) {
    is_delta_uf(out, X);
    return;
  }
  if (n > X.delta) {
    out << "sorry, but checking n-unifomity for n > delta is not supported yet\n" << Line;
    return;
  }
  beta_matrix(X);
  if (every_subset_is_independent(out, X, n)) {
    out << "\nscheme has " << n << "-uniform property\n";
  } else {
    out << "scheme has NOT " << n << "-uniform property\n";
  }
  out << Line;
}

}  // namespace zep::points
