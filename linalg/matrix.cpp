// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/matrix.h"

#include <algorithm>
#include <numeric>
#include <ostream>
#include <string>
#include <utility>

#include "base/interrupt.h"
#include "linalg/row_operations.h"

namespace zep::linalg {

namespace {

// The state of one `solve`: a is addressed through the orders c and r.
class gauss_jordan {
 public:
  gauss_jordan(matrix& a, std::span<int> c, std::span<int> r) : a_(a), c_(c), r_(r) {}

  int run(int steps) {
    int free_unknowns = a_.cols();
    for (int k = 0; k < steps && find_pivot(k); ++k) {
      heed_interrupt();
      if (--free_unknowns == 0) return 0;
      work_on_columns_from(k);
      normalise(k);
      for (int i = k + 1; i < a_.rows(); ++i) subtract(i, k);
    }
    const int rank = a_.cols() - free_unknowns;
    work_on_columns_from(rank);
    for (int k = rank - 2; k >= 0; --k) {
      heed_interrupt();
      for (int j = k + 1; j < rank; ++j) subtract(k, j);
    }
    return free_unknowns;
  }

 private:
  int& column(int k) { return c_[k]; }
  int& row_index(int k) { return r_[k]; }
  row_view row(int k) { return a_[row_index(k)]; }
  row_view stretch(int k) { return row(k).subspan(begin_, length_); }

  // Brings a non-zero entry to position (k, k): a row from below, or else, with another column.
  bool find_pivot(int k) {
    while (true) {
      heed_interrupt();
      for (int i = k; i < a_.rows(); ++i) {
        if (row(i)[column(k)] != 0) {
          std::swap(row_index(k), row_index(i));
          return true;
        }
      }
      if (k + deferred_ >= a_.cols() - 1) return false;
      ++deferred_;
      std::swap(column(k), column(a_.cols() - deferred_));
    }
  }

  // Lets `normalise` and `subtract` work on the shortest stretch of a row that holds the columns
  // from position k on. The other columns in it do not matter: there the pivot row is zero, or the
  // entry is set by hand.
  void work_on_columns_from(int k) {
    const auto [lowest, highest] = std::minmax_element(c_.begin() + k, c_.end());
    begin_ = lowest == c_.end() ? 0 : static_cast<std::size_t>(*lowest);
    length_ = lowest == c_.end() ? 0 : static_cast<std::size_t>(*highest - *lowest) + 1;
  }

  void normalise(int k) {
    Fp8& pivot = row(k)[column(k)];
    scale(stretch(k), Fp8(1) / pivot);
    pivot = 1;
  }

  // Clears the entry of row i in the pivot column k.
  void subtract(int i, int k) {
    Fp8& entry = row(i)[column(k)];
    axpy(stretch(i), stretch(k), -entry);
    entry = 0;
  }

  matrix& a_;
  std::span<int> c_;
  std::span<int> r_;
  int deferred_ = 0;
  std::size_t begin_ = 0;
  std::size_t length_ = 0;
};

std::string blanks(int n) { return std::string(static_cast<std::size_t>(n), ' '); }

int width_of_column(const matrix& m, int j) {
  int width = 0;
  for (int i = 0; i < m.rows(); ++i) width = std::max(width, len(m[i][j]));
  return width;
}

void print_row(std::ostream& out, const matrix& m, int i, const std::vector<int>& widths) {
  out << "[ ";
  for (int j = 0; j < m.cols(); ++j) {
    const int spare = widths[j] - len(m[i][j]);
    if (j > 0) out << "  ";
    out << blanks((spare + 1) / 2) << m[i][j] << blanks(spare / 2);
  }
  out << " ]\n";
}

std::string empty_row(const std::vector<int>& widths) {
  std::string text = "[ ";
  for (std::size_t j = 0; j < widths.size(); ++j) {
    if (j > 0) text += "  ";
    text += blanks(widths[j]);
  }
  return text + " ]\n";
}

}  // namespace

matrix::matrix(int c, int r)
    : cols_(std::max(c, 0)), rows_(std::max(r, 0)), a_(static_cast<std::size_t>(cols_) * rows_) {}

int matrix::solve(std::span<int> c, std::span<int> r) {
  return solve(c, r, std::min(cols_, rows_));
}

int matrix::solve(std::span<int> c, std::span<int> r, int steps) {
  return gauss_jordan(*this, c, r).run(steps);
}

std::vector<int> identity_order(int n) {
  std::vector<int> order(static_cast<std::size_t>(n));
  std::iota(order.begin(), order.end(), 0);
  return order;
}

int rank(matrix m) {
  std::vector<int> c = identity_order(m.cols());
  std::vector<int> r = identity_order(m.rows());
  return m.cols() - m.solve(c, r);
}

std::ostream& operator<<(std::ostream& out, const matrix& m) {
  std::vector<int> widths(static_cast<std::size_t>(m.cols()));
  for (int j = 0; j < m.cols(); ++j) {
    heed_interrupt();
    widths[j] = width_of_column(m, j);
  }
  for (int i = 0; i < m.rows(); ++i) {
    heed_interrupt();
    if (i > 0) out << empty_row(widths);
    print_row(out, m, i, widths);
  }
  return out;
}

}  // namespace zep::linalg
