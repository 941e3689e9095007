// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/separators.h"

#include "base/interrupt.h"
#include "base/paranoid.h"

namespace zep::points {

namespace {

bool has_cayley_bacharach(const order_ideal& X) {
  for (int k = 1; k < X.s(); ++k) {
    heed_interrupt();
    if (separator_degree(X, k) != separator_degree(X, k - 1)) return false;
  }
  return true;
}

bool has_symmetric_hilbert_function(const order_ideal& X) {
  const int sigma = X.H.sigma;
  for (int i = 0; i <= sigma / 2; ++i) {
    if (hilbert_function(X.H, i) + hilbert_function(X.H, sigma - i) != X.s()) return false;
  }
  return true;
}

}  // namespace

verdicts sep(const order_ideal& X, reporter& to) {
  const progress countdown(to, "calculating biorthogonal sequence ...\n");
  countdown.count_down(X.s());
  countdown.end_line();
  to.end_of_computation();
  verdicts found;
  found.is_CB = has_cayley_bacharach(X);
  if (found.is_CB) found.is_ar_Go = has_symmetric_hilbert_function(X);
  ensure("Gorenstein schemes have the Cayley-Bacharach property",
         [&] { return found.is_CB || !found.is_ar_Go; });
  return found;
}

}  // namespace zep::points
