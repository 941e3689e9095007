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
    std::vector<polynomial> last;
    last.reserve(rank);
    for (int i = w_R.no_of_pr() - rank; i < w_R.no_of_pr(); ++i) {
      last.push_back(w_R.entry(i, j));
    }
    if (std::any_of(last.begin(), last.end(), is_linear)) relations.push_back(std::move(last));
  }
  return vectors_of(std::move(relations), rank);
}

}  // namespace

std::vector<int> linom(const presentation& w_R, reporter& to, const level_visitor& visit) {
  const int rank = no_of_least_generators(w_R);
  std::vector<int> numbers(dim);
  numbers.back() = rank;
  to.say("w_R has " + std::to_string(rank) + " generators in degree " + std::to_string(-w_R.sigma) +
         "\n");
  const auto count_and_visit = [&](int level, const form_vectors& vectors) {
    const int number = vectors.no_of_nonzero();
    if (level < dim) numbers[dim - 1 - level] = number;
    to.say(std::to_string(number) + " syzygies in degree " + std::to_string(-w_R.sigma - level) +
           " found\n");
    return visit(level, vectors);
  };
  strand_of_relations(linear_relations(w_R, rank), to, count_and_visit);
  to.say(Line);
  return numbers;
}

}  // namespace zep::points
