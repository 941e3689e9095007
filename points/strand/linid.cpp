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

// The minimal generators of least degree. They are ascending by degree.
form_vectors least_generators(const ideal& I) {
  std::vector<std::vector<polynomial>> generators;
  for (const polynomial& f : I.gen) {
    heed_interrupt();
    if (f.term(0).tot_deg() != I.gen.front().term(0).tot_deg()) break;
    generators.push_back({f});
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

}  // namespace

std::vector<int> linid(const ideal& generators, int alpha, reporter& to, const level_action& act) {
  std::vector<int> numbers(dim);
  const auto visit = [&](int level, const form_vectors& vectors) {
    const int number = vectors.no_of_nonzero();
    if (level < dim) numbers[level] = number;
    to.say(found(level, number, alpha));
    act(level, vectors);
    return true;
  };
  strand_of_generators(least_generators(generators), to, visit);
  to.say(Line);
  return numbers;
}

}  // namespace zep::points
