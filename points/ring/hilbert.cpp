// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ring/hilbert.h"

#include <iterator>
#include <numeric>

namespace zep::points {

hilbert_numbers hilbert(const std::vector<monom>& O, const groebner_basis& Ix) {
  const auto s = std::ssize(O);
  hilbert_numbers H{std::vector<int>(O.size()), std::vector<int>(O.size())};
  for (const monom& t : O) ++H.delta_fct[t.tot_deg()];
  for (int n = 0; n < s && H.delta_fct[n] != 0; ++n) H.sigma = n - 1;
  H.delta = difference_function(H, H.sigma + 1);
  H.alpha = Ix.no_of_gens() > 0 ? Ix.lead(0).tot_deg() : 0;
  std::partial_sum(H.delta_fct.begin(), H.delta_fct.end(), H.hilb_fct.begin());
  return H;
}

int hilbert_function(const hilbert_numbers& H, int n) {
  const auto s = std::ssize(H.hilb_fct);
  if (n < 0) return 0;
  return n < s ? H.hilb_fct[n] : static_cast<int>(s);
}

int difference_function(const hilbert_numbers& H, int n) {
  return n >= 0 && n < std::ssize(H.delta_fct) ? H.delta_fct[n] : 0;
}

}  // namespace zep::points
