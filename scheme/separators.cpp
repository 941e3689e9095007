#include "scheme/separators.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "arith/Fp.h"
#include "arith/output.h"
#include "linalg/row_operations.h"
#include "scheme/bu_mo.h"
#include "scheme/consistency.h"
#include "scheme/hilbert.h"
#include "scheme/progress.h"

namespace zep {

namespace {

// Member j of the triangular sequence is 1 at its pivot and otherwise not 0 only at later pivots,
// whose separators are final when j is handled from the last to the first.
matrix biorthogonal_sequence(const scheme& X, const progress& countdown) {
  matrix separator(X.s, X.s);
  const auto pi = [&](int j) { return X.pi[static_cast<std::size_t>(j)]; };
  for (int j = X.s - 1; j >= 0; --j) {
    Fp8* const f = separator[pi(j)];
    std::copy(X.q.row(j).begin(), X.q.row(j).end(), f);
    for (int k = j + 1; k < X.s; ++k) {
      axpy(f, separator[pi(k)], -X.ev_q[j][pi(k)], static_cast<std::size_t>(X.s));
    }
    countdown.count(j + 1);
  }
  return separator;
}

}  // namespace

void sep(scheme& X) {
  const progress countdown("calculating biorthogonal sequence ...\n");
  matrix separator = biorthogonal_sequence(X, countdown);
  countdown.end_line();
  std::cout << Line;

  X.separator = std::move(separator);
  X.sep = 1;
  X.q = matrix(0, 0);
  X.ev_q = matrix(0, 0);
  X.pi = std::vector<int>();
  hilbert2(X);
  ensure_consistent(X);
}

void need_sep(scheme& X) {
  need_bu_mo(X);
  if (X.sep == 0) sep(X);
}

void separators(std::ostream& out, scheme& X) {
  need_sep(X);
  out << "separators of X : \n";
  for (int i = 0; i < X.s; ++i) {
    counter = len(i + 1) + 4;
    out << "f" << i + 1 << " = " << separator_of(X, i) << "\n";
  }
  out << Line;
}

}  // namespace zep
