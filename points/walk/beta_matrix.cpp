#include "points/walk/beta_matrix.h"

#include <algorithm>
#include <ostream>
#include <utility>
#include <vector>

#include "base/interrupt.h"
#include "base/output.h"
#include "base/reporter.h"
#include "linalg/row_operations.h"
#include "points/record/consistency.h"
#include "points/walk/separators.h"

namespace zep::points {

namespace {

// The elimination among the leading forms. Rows belong to points. Column l of `forms` belongs to
// the l-th member of O of top degree, of which there are delta; they are the last ones of O.
class leading_forms {
 public:
  explicit leading_forms(const scheme& X)
      : beta(X.delta, X.s), forms_(X.delta, X.s), of_basis_(X.delta, X.delta), in_basis_(X.s) {
    for (int i = 0; i < X.s; ++i) {
      heed_interrupt();
      const auto row = X.separator.row(i);
      std::copy(row.end() - X.delta, row.end(), forms_[i]);
    }
  }

  // Eliminates the greatest of the columns that are left. The first point that leads there joins
  // the basis, and its form is subtracted from those of the others.
  void eliminate(int column) {
    int pivot = -1;
    for (int i = 0; i < beta.rows(); ++i) {
      heed_interrupt();
      if (in_basis_[i] || forms_[i][column] == 0) continue;
      if (pivot < 0) {
        pivot = i;
        join(i);
      } else {
        const Fp8 c = forms_[i][column] / forms_[pivot][column];
        axpy(forms_[i], forms_[pivot], -c, column + 1);
        axpy(beta[i], of_basis_[last()], c, last() + 1);
      }
    }
  }

  matrix beta;
  std::vector<int> basis;

 private:
  int last() const { return static_cast<int>(basis.size()) - 1; }

  // Row l of `of_basis_` expresses the reduced form of basis element l by the unreduced ones.
  void join(int i) {
    const int b = static_cast<int>(basis.size());
    for (int l = 0; l < b; ++l) {
      of_basis_[b][l] = -beta[i][l];
      beta[i][l] = 0;
    }
    of_basis_[b][b] = 1;
    beta[i][b] = 1;
    basis.push_back(i);
    in_basis_[i] = true;
  }

  matrix forms_;
  matrix of_basis_;
  std::vector<bool> in_basis_;
};

}  // namespace

void beta_matrix(scheme& X) {
  need_sep(X);
  if (X.beta_matrix) return;
  leading_forms forms(X);
  const progress countdown("calculating beta matrix ...\n");
  for (int column = X.delta - 1; column >= 0; --column) {
    countdown.count(column + 1);
    forms.eliminate(column);
  }
  countdown.end_line();

  // Meaningless data may leave the basis short.
  forms.basis.resize(X.delta);
  X.beta_matrix = std::move(forms.beta);
  X.basis = std::move(forms.basis);
  ensure_consistent(X);
}

void disp_beta_matrix(std::ostream& out, scheme& X) {
  beta_matrix(X);
  out << "the beta_matrix with respect to the following separators :\n";
  for (const int i : X.basis) out << "f" << i + 1 << ", ";
  out << "\n" << *X.beta_matrix << Line;
}

}  // namespace zep::points
