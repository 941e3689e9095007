// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/walk/beta_matrix.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/interrupt.h"
#include "base/paranoid.h"
#include "linalg/row_operations.h"

namespace zep::points {

namespace {

// The elimination among the leading forms. Rows belong to points. Column l of `forms` belongs to
// the l-th member of O of top degree, of which there are delta; they are the last ones of O.
class form_elimination {
 public:
  form_elimination(const matrix& separator, int delta)
      : beta(delta, separator.rows()),
        forms_(delta, separator.rows()),
        of_basis_(delta, delta),
        in_basis_(separator.rows()) {
    for (int i = 0; i < separator.rows(); ++i) {
      heed_interrupt();
      const const_row_view form = separator[i].last(delta);
      std::copy(form.begin(), form.end(), forms_[i].begin());
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
        axpy(forms_[i].first(column + 1), forms_[pivot].first(column + 1), -c);
        axpy(beta[i].first(basis.size()), of_basis_[last()].first(basis.size()), c);
      }
    }
  }

  // True when the rows of beta that belong to the basis are unit vectors.
  bool basis_is_expressed() const {
    for (int l = 0; l <= last(); ++l) {
      for (int j = 0; j < beta.cols(); ++j) {
        if (beta[basis[l]][j] != (j == l ? 1 : 0)) return false;
      }
    }
    return true;
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

leading_forms beta_matrix(const order_ideal& X, reporter& to) {
  const int delta = X.H.delta;
  form_elimination forms(X.separator, delta);
  const progress countdown(to, "calculating beta matrix ...\n");
  for (int column = delta - 1; column >= 0; --column) {
    countdown.count(column + 1);
    forms.eliminate(column);
  }
  countdown.end_line();
  ensure("a basis element is itself in the basis", [&] { return forms.basis_is_expressed(); });
  // Meaningless data may leave the basis short.
  forms.basis.resize(delta);
  return {std::move(forms.beta), std::move(forms.basis)};
}

}  // namespace zep::points
