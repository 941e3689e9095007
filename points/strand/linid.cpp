// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/linid.h"

#include <string>
#include <utility>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "base/output.h"
#include "points/strand/linear_strand.h"

namespace zep::points {

namespace {

enum class terms { all, leading };

// The minimal generators of least degree, or their leading terms. They are ascending by degree.
form_vectors least_generators(const ideal& I, terms which) {
  std::vector<std::vector<polynomial>> generators;
  for (const polynomial& f : I.gen) {
    heed_interrupt();
    if (f.term(0).tot_deg() != I.gen.front().term(0).tot_deg()) break;
    generators.push_back({which == terms::all ? f : polynomial(f.term(0))});
  }
  return vectors_of(std::move(generators), 1);
}

std::string found(int level, int number, int alpha) {
  if (level == 0) {
    return "I_X has " + std::to_string(number) + " generators of degree " + std::to_string(alpha) +
           "\n";
  }
  return std::to_string(number) + " syzygies in degree " + std::to_string(alpha - level) +
         " found\n";
}

template <class Follow>
std::vector<int> followed(int alpha, reporter& to, const level_action& act, Follow follow) {
  std::vector<int> numbers(dim);
  strand_watcher watcher;
  watcher.found = [&](int level, int number) {
    if (level < dim) numbers[level] = number;
    to.say(found(level, number, alpha));
  };
  if (act) {
    watcher.visit = [&](int level, const form_vectors& vectors) {
      act(level, vectors);
      return true;
    };
  }
  follow(watcher);
  to.say(Line);
  return numbers;
}

}  // namespace

// Linear forms have a Koszul complex as their strand, with few terms: pairs find it at once.
std::vector<int> linid(const ideal& generators, const order_ideal& X, const canonical_forms& A,
                       reporter& to, const level_action& act) {
  if (!is_meaningful(X) || X.H.alpha < 2) return linid_by_pairs(generators, X.H.alpha, to, act);
  const koszul_complex K(A);
  return followed(X.H.alpha, to, act, [&](const strand_watcher& watcher) {
    // Tails show in the vectors only.
    const terms which = act ? terms::all : terms::leading;
    strand_of_ideal(least_generators(generators, which), K, to, watcher);
  });
}

std::vector<int> linid_by_pairs(const ideal& generators, int alpha, reporter& to,
                                const level_action& act) {
  return followed(alpha, to, act, [&](const strand_watcher& watcher) {
    strand_of_generators(least_generators(generators, terms::all), to, watcher);
  });
}

}  // namespace zep::points
