// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/neighbour_pairs.h"

#include <algorithm>
#include <vector>

#include "base/interrupt.h"

namespace zep::points {

namespace {

// The last slot in which s has the larger exponent, or -1.
int last_larger_slot(const monom& s, const monom& t) {
  for (int i = s.dim() - 1; i >= 0; --i) {
    if (s.exp(i) > t.exp(i)) return i;
  }
  return -1;
}

// A member P of O that x_a and x_b take to the border is what is left of the least common multiple
// of s and t if s divides x_a * P and t divides x_b * P: s has x_a once more often than P then, as
// it does not divide P, and t has x_b once more often. So s and t are among the divisors of these
// two border monomials.
class neighbour_counter {
 public:
  neighbour_counter(const order_ideal& X, const canonical_forms& forms, int enough)
      : X_(X), forms_(forms), enough_(enough) {
    leading_divisors_.reserve(X.B.size());
  }

  int count() {
    for (int i = 0; i < forms_.no_of_members() && found_ < enough_; ++i) {
      heed_interrupt();
      const monom& P = X_.O[i];
      find_divisors_up_to(P.tot_deg() + 1);
      for (int b = 1; b < P.dim(); ++b) {
        for (int a = 0; a < b; ++a) count_at(i, a, b);
      }
    }
    return std::min(found_, enough_);
  }

 private:
  // The border monomials ascend, so that divisors come first.
  void find_divisors_up_to(int d) {
    for (std::size_t b = leading_divisors_.size(); b < X_.B.size() && X_.B[b].tot_deg() <= d; ++b) {
      heed_interrupt();
      leading_divisors_.push_back(leading_divisors(X_.B[b]));
    }
  }

  // The Groebner basis elements whose leading monomials divide a border monomial.
  std::vector<int> leading_divisors(const monom& t) const {
    if (const int g = is_el_G(X_, t); g >= 0) return {g};
    std::vector<int> found;
    for (int v = 0; v < t.dim(); ++v) {
      if (t.exp(v) == 0) continue;
      const int below = is_el_B(X_, t / variable(v));
      if (below < 0) continue;
      const std::vector<int>& some = leading_divisors_[below];
      found.insert(found.end(), some.begin(), some.end());
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
  }

  void count_at(int i, int a, int b) {
    const auto [a_in_O, with_a] = forms_.times(i, a);
    const auto [b_in_O, with_b] = forms_.times(i, b);
    if (a_in_O || b_in_O) return;
    const monom multiple = X_.B[with_a] * variable(b);
    for (const int g : leading_divisors_[with_a]) {
      for (const int h : leading_divisors_[with_b]) {
        const monom& s = X_.Ix.lead(g);
        const monom& t = X_.Ix.lead(h);
        if (last_larger_slot(s, t) == a && last_larger_slot(t, s) == b && lcm(s, t) == multiple) {
          ++found_;
        }
      }
    }
  }

  const order_ideal& X_;
  const canonical_forms& forms_;
  int enough_;
  // For each border monomial, of degrees up to that at hand.
  std::vector<std::vector<int>> leading_divisors_;
  int found_ = 0;
};

}  // namespace

int neighbour_pairs(const order_ideal& X, const canonical_forms& forms, int enough) {
  return neighbour_counter(X, forms, enough).count();
}

}  // namespace zep::points
