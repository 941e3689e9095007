#include "points/walk/hilbert.h"

#include <algorithm>
#include <numeric>

#include "base/interrupt.h"

namespace zep::points {

namespace {

bool has_cayley_bacharach(const scheme& X) {
  for (int k = 1; k < X.s; ++k) {
    heed_interrupt();
    if (separator_degree(X, k) != separator_degree(X, k - 1)) return false;
  }
  return true;
}

bool has_symmetric_hilbert_function(const scheme& X) {
  for (int i = 0; i <= X.sigma / 2; ++i) {
    if (hilbert_function(X, i) + hilbert_function(X, X.sigma - i) != X.s) return false;
  }
  return true;
}

}  // namespace

int hilbert_function(const scheme& X, int n) {
  if (n < 0) return 0;
  return n < X.s ? X.hilb_fct[n] : X.s;
}

int difference_function(const scheme& X, int n) { return n >= 0 && n < X.s ? X.delta_fct[n] : 0; }

void hilbert(scheme& X) {
  std::fill(X.delta_fct.begin(), X.delta_fct.end(), 0);
  for (const monom& t : X.O) ++X.delta_fct[t.tot_deg()];
  for (int n = 0; n < X.s && X.delta_fct[n] != 0; ++n) X.sigma = n - 1;
  X.delta = difference_function(X, X.sigma + 1);
  X.alpha = X.Ix->no_of_gens() > 0 ? X.Ix->lead(0).tot_deg() : 0;
  std::partial_sum(X.delta_fct.begin(), X.delta_fct.end(), X.hilb_fct.begin());
}

void hilbert2(scheme& X) {
  X.is_CB = has_cayley_bacharach(X) ? 1 : 0;
  if (X.is_CB == 1) X.is_ar_Go = has_symmetric_hilbert_function(X) ? 1 : 0;
}

}  // namespace zep::points
