// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/result_files.h"

#include <ostream>
#include <vector>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "text/vector_text.h"

namespace zep::text {

namespace {

// A row of n polynomials, made one by one.
template <class Polynomial>
void put_polynomials(std::ostream& out, int n, Polynomial polynomial) {
  out << 1 << "\n" << n << "\n";
  put_vector(out, n, polynomial);
}

}  // namespace

void put_points(std::ostream& out, const matrix& P) {
  out << proj << "\n" << P.rows() << "\n";
  for (int i = 0; i < P.rows(); ++i) {
    heed_interrupt();
    out << 1 << "\n";
    for (const Fp8 x : P[i]) out << x << "\n";
  }
}

void put_matrix(std::ostream& out, const matrix& m) {
  out << m.cols() << "\n" << m.rows() << "\n";
  for (int i = 0; i < m.rows(); ++i) {
    heed_interrupt();
    for (const Fp8 x : m[i]) out << x << "\n";
  }
}

void put_separators(std::ostream& out, const points::order_ideal& X) {
  put_polynomials(out, X.s(), [&](int i) { return separator_of(X, i); });
}

void put_groebner(std::ostream& out, const points::order_ideal& X) {
  put_polynomials(out, X.Ix.no_of_gens(), [&](int g) { return groebner_element(X, g); });
}

void put_generators(std::ostream& out, const ideal& I) {
  put_polynomials(out, I.no_of_gens(), [&](int m) -> const polynomial& { return I.gen[m]; });
}

void put_presentation(std::ostream& out, const presentation& w_R) {
  out << w_R.no_of_pr() << "\n" << w_R.A_d_cols << "\n";
  for (int j = 0; j < w_R.A_d_cols; ++j) {
    const std::vector<polynomial> column = w_R.column(j);
    put_vector(out, w_R.no_of_pr(), [&](int i) -> const polynomial& { return column[i]; });
  }
}

}  // namespace zep::text
