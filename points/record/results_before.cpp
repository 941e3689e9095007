#include "points/record/results_before.h"

#include <utility>

#include "base/output.h"
#include "points/record/consistency.h"

namespace zep::points {

namespace {

// Removes every result.
void clear(scheme& X) {
  matrix points = std::exchange(X.P, matrix(0, 0));
  X = scheme(X.s);
  X.P = std::move(points);
}

void clear_omega(scheme& X) {
  X.pr = {};
  X.pr_deg = {};
  X.A_d_cols = 0;
  X.A_d = {};
  X.A_d_maxdeg = 0;
  X.A_d_coldeg = {};
}

}  // namespace

// Without points omega leaves no generators, but always their numbers by degree.
results_before::results_before(const scheme& X)
    : column_(counter),
      bu_mo_(X.has_bu_mo),
      beta_matrix_(X.beta_matrix.has_value()),
      Can_Lf_(X.Can_Lf.has_value()),
      min_Ix_(X.min_Ix.has_value()),
      socle_(X.socle.has_value()),
      omega_(!X.pr_deg.empty()),
      sep_(X.sep),
      is_CB_(X.is_CB),
      is_ar_Go_(X.is_ar_Go),
      linres_(X.linres),
      linid_(X.linid),
      linom_(X.linom) {}

void results_before::restore(scheme& X) const {
  counter = column_;
  // Everything else comes after Buchberger-Moeller.
  if (!bu_mo_) clear(X);
  X.sep = sep_;
  X.is_CB = is_CB_;
  X.is_ar_Go = is_ar_Go_;
  if (!beta_matrix_) {
    X.beta_matrix.reset();
    X.basis = {};
  }
  if (!Can_Lf_) X.Can_Lf.reset();
  if (!min_Ix_) X.min_Ix.reset();
  if (!socle_) X.socle.reset();
  if (!omega_) clear_omega(X);
  X.linres = linres_;
  X.linid = linid_;
  X.linom = linom_;
  ensure_consistent(X);
}

}  // namespace zep::points
