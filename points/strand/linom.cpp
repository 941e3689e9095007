#include "points/strand/linom.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "base/output.h"
#include "base/reporter.h"
#include "points/module/canonical_module.h"
#include "points/record/consistency.h"
#include "points/strand/linear_strand.h"
#include "text/strand_table.h"
#include "text/strand_text.h"

namespace zep::points {

namespace {

// Number of generators with a monomial of the largest degree. They are the last ones.
int no_of_least_generators(const scheme& X) {
  const auto degree = [&](int position) { return X.O[position].tot_deg(); };
  return static_cast<int>(std::count_if(X.pr.begin(), X.pr.end(), [&](int position) {
    return degree(position) == degree(X.pr.back());
  }));
}

bool is_linear(const polynomial& f) {
  const monom& m = f.term(0);
  return sign(f) != 0 && m.tot_deg() + m.exp(proj - 1) == 1;
}

// The relations with a linear entry at one of the last `rank` generators, cut to these.
form_vectors linear_relations(const scheme& X, int rank) {
  std::vector<std::vector<polynomial>> relations;
  for (int j = 0; j < X.A_d_cols; ++j) {
    heed_interrupt();
    std::vector<polynomial> last;
    last.reserve(rank);
    for (int i = no_of_pr(X) - rank; i < no_of_pr(X); ++i) {
      last.push_back(entry_of_A_d(X, i, j));
    }
    if (std::any_of(last.begin(), last.end(), is_linear)) relations.push_back(std::move(last));
  }
  return vectors_of(std::move(relations), rank);
}

void compute(scheme& X, const level_report& act) {
  need_omega(X);
  const int rank = no_of_least_generators(X);
  std::vector<int> numbers(dim);
  numbers.back() = rank;
  report("w_R has " + std::to_string(rank) + " generators in degree " + std::to_string(-X.sigma) +
         "\n");
  strand_of_relations(linear_relations(X, rank), [&](int level, const form_vectors& vectors) {
    const int number = vectors.no_of_nonzero();
    if (level < dim) numbers[dim - 1 - level] = number;
    report(std::to_string(number) + " syzygies in degree " + std::to_string(-X.sigma - level) +
           " found\n");
    return act(level, vectors);
  });
  report(Line);
  X.linres[1] = std::move(numbers);
  ensure_consistent(X);
}

std::vector<int> reversed(std::vector<int> numbers) {
  std::reverse(numbers.begin(), numbers.end());
  return numbers;
}

}  // namespace

void linom(scheme& X) {
  if (X.linom != 0) return;
  compute(X, [](int, const form_vectors&) { return true; });
  X.linom = 1;
}

void putlinom(std::ostream& out, scheme& X) {
  compute(X, [&](int level, const form_vectors& vectors) {
    put_matrix(out, level, "w_R", vectors);
    return true;
  });
  X.linom = 1;
}

void linomsyz(std::ostream& out, scheme& X) {
  compute(X, [&](int, const form_vectors& vectors) {
    show_vectors(out, vectors);
    return false;
  });
}

void putlinomsyz(std::ostream& out, scheme& X) {
  compute(X, [&](int, const form_vectors& vectors) {
    put_vectors(out, vectors);
    return false;
  });
}

// The entries stand in reverse, but each is padded to the width of the column that has its index.
void disp_linom(std::ostream& out, scheme& X) {
  const std::vector<int> numbers = reversed(X.linres[1]);
  std::vector<int> widths(numbers.size());
  std::transform(numbers.begin(), numbers.end(), widths.begin(), column_width);
  const strand_table table(widths);
  table.head(out);
  table.line(out, "deg | ", consecutive(table.columns(), -X.sigma, -1));
  strand_table(reversed(widths)).line(out, "w_R | ", numbers);
  out << Line;
}

void disp_linres(std::ostream& out, scheme& X) {
  const int n = static_cast<int>(X.linres[0].size());
  std::vector<int> widths(n);
  std::transform(X.linres[0].begin(), X.linres[0].end(), X.linres[1].begin(), widths.begin(),
                 [](int a, int b) { return std::max(column_width(a), column_width(b)); });
  const strand_table table(std::move(widths));
  table.head(out);
  table.line(out, "deg | ", consecutive(n, X.alpha, -1));
  table.line(out, "I_X | ", X.linres[0]);
  table.rule(out);
  table.line(out, "w_R | ", X.linres[1]);
  table.line(out, "deg | ", consecutive(n, -X.sigma - n + 1, 1));
  out << Line;
}

}  // namespace zep::points
