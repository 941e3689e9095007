#include "points/strand/linid.h"

#include <algorithm>
#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "base/output.h"
#include "base/reporter.h"
#include "points/ideal/minimal_generators.h"
#include "points/record/consistency.h"
#include "points/strand/linear_strand.h"
#include "text/strand_table.h"
#include "text/strand_text.h"

namespace zep::points {

namespace {

// The minimal generators of least degree. They are ascending by degree.
form_vectors least_generators(const scheme& X) {
  std::vector<std::vector<polynomial>> generators;
  for (const polynomial& f : X.min_Ix->gen) {
    heed_interrupt();
    if (f.term(0).tot_deg() != X.min_Ix->gen.front().term(0).tot_deg()) break;
    generators.push_back({f});
  }
  return vectors_of(std::move(generators), 1);
}

void report_level(const scheme& X, int level, int number) {
  if (level == 0) {
    report("I_X has " + std::to_string(number) + " generators of degree " +
           std::to_string(X.alpha) + "\n");
  } else {
    report(std::to_string(number) + " syzygies in degree " + std::to_string(X.alpha - level) +
           " found\n");
  }
}

// What else is to be done with the vectors of a level.
using level_action = std::function<void(int level, const form_vectors& vectors)>;

void compute(scheme& X, const level_action& act) {
  min_Ix(X);
  std::vector<int> numbers(dim);
  strand_of_generators(least_generators(X), [&](int level, const form_vectors& vectors) {
    const int number = vectors.no_of_nonzero();
    if (level < dim) numbers[level] = number;
    report_level(X, level, number);
    act(level, vectors);
    return true;
  });
  report(Line);
  X.linres[0] = std::move(numbers);
  ensure_consistent(X);
}

}  // namespace

void linid(scheme& X) {
  if (X.linid != 0) return;
  compute(X, [](int, const form_vectors&) {});
  X.linid = 1;
}

void linsyz(std::ostream& out, scheme& X) {
  compute(X, [&](int level, const form_vectors& vectors) {
    if (level > 0) show_vectors(out, vectors);
  });
}

void putlinid(std::ostream& out, scheme& X) {
  compute(X, [&](int level, const form_vectors& vectors) {
    put_matrix(out, level + 1, "I_X", vectors);
  });
  X.linid = 1;
}

void putlinsyz(std::ostream& out, scheme& X) {
  compute(X, [&](int level, const form_vectors& vectors) {
    if (level > 0) put_vectors(out, vectors);
  });
}

void disp_linid(std::ostream& out, scheme& X) {
  const std::vector<int>& numbers = X.linres[0];
  std::vector<int> widths(numbers.size());
  std::transform(numbers.begin(), numbers.end(), widths.begin(), column_width);
  const strand_table table(std::move(widths));
  table.head(out);
  table.line(out, "deg | ", consecutive(table.columns(), X.alpha, -1));
  table.line(out, "I_X | ", numbers);
  out << Line;
}

}  // namespace zep::points
