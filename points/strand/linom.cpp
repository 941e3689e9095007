// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/linom.h"

#include <algorithm>
#include <string>
#include <utility>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "base/output.h"

namespace zep::points {

namespace {

// Number of generators with a monomial of the largest degree. They are the last ones.
int no_of_least_generators(const presentation& w_R) {
  return static_cast<int>(
      std::count_if(w_R.pr_monom.begin(), w_R.pr_monom.end(),
                    [&](const monom& t) { return t.tot_deg() == w_R.pr_monom.back().tot_deg(); }));
}

bool is_linear(const polynomial& f) {
  const monom& m = f.term(0);
  return sign(f) != 0 && m.tot_deg() + m.exp(proj - 1) == 1;
}

// The relations with a linear entry at one of the last `rank` generators, cut to these.
form_vectors linear_relations(const presentation& w_R, int rank) {
  std::vector<std::vector<polynomial>> relations;
  for (int j = 0; j < w_R.A_d_cols; ++j) {
    heed_interrupt();
    std::vector<polynomial> last = w_R.column(j);
    last.erase(last.begin(), last.end() - rank);
    if (std::any_of(last.begin(), last.end(), is_linear)) relations.push_back(std::move(last));
  }
  return vectors_of(std::move(relations), rank);
}

template <class Follow>
std::vector<int> followed(const presentation& w_R, reporter& to, const level_visitor& visit,
                          Follow follow) {
  const int rank = no_of_least_generators(w_R);
  std::vector<int> numbers(dim);
  numbers.back() = rank;
  to.say("w_R has " + std::to_string(rank) + " generators in degree " + std::to_string(-w_R.sigma) +
         "\n");
  strand_watcher watcher;
  watcher.found = [&](int level, int number) {
    if (level < dim) numbers[dim - 1 - level] = number;
    to.say(std::to_string(number) + " syzygies in degree " + std::to_string(-w_R.sigma - level) +
           " found\n");
  };
  watcher.visit = visit;
  follow(linear_relations(w_R, rank), watcher);
  to.say(Line);
  return numbers;
}

}  // namespace

// Where linear forms vanish on X, vectors have few terms, and pairs are faster.
std::vector<int> linom(const presentation& w_R, const order_ideal& X, const canonical_forms& A,
                       reporter& to, const level_visitor& visit) {
  if (!is_meaningful(X) || X.H.alpha < 2) return linom_by_pairs(w_R, to, visit);
  const koszul_complex K(A);
  return followed(w_R, to, visit, [&](form_vectors relations, const strand_watcher& watcher) {
    strand_of_module(std::move(relations), K, to, watcher);
  });
}

std::vector<int> linom_by_pairs(const presentation& w_R, reporter& to, const level_visitor& visit) {
  return followed(w_R, to, visit, [&](form_vectors relations, const strand_watcher& watcher) {
    strand_of_relations(std::move(relations), to, watcher);
  });
}

}  // namespace zep::points
