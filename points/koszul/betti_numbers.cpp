// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/koszul/betti_numbers.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

#include "base/interrupt.h"
#include "linalg/row_space.h"
#include "points/koszul/koszul_complex.h"

namespace zep::points {

namespace {

// So many rows are taken into a row space at once.
constexpr std::size_t block = 512;

// The rank of the boundary from the critical cells of bidegree (i, j); no more than `bound`.
std::int64_t boundary_rank(const koszul_complex& K, int i, int j, std::int64_t bound) {
  if (K.width(i - 1, j + 1) > std::numeric_limits<int>::max()) {
    throw std::length_error("the chains of the Koszul complex are too long");
  }
  const std::vector<std::size_t> to = K.places(K.critical_cells(i - 1, j + 1));
  row_space boundaries(static_cast<int>(to.size()));
  std::vector<row> rows;
  const auto take = [&] { boundaries.add_rows(std::exchange(rows, {})); };
  for (const koszul_complex::cell& c : K.critical_cells(i, j)) {
    heed_interrupt();
    const row chain = K.small_boundary(c);
    row& taken = rows.emplace_back();
    taken.reserve(to.size());
    for (const std::size_t place : to) taken.push_back(chain[place]);
    if (rows.size() == block) take();
    if (boundaries.rank() == bound) return bound;
  }
  take();
  return boundaries.rank();
}

// The ranks, found in an order in which one tells as much as possible about the others.
class boundary_ranks {
 public:
  explicit boundary_ranks(const koszul_complex& K)
      : K_(K), n_(K.dim_V()), top_(K.top_degree()), ranks_(n_ + 2) {
    for (std::vector<std::int64_t>& of_i : ranks_) of_i.assign(top_ + 2, -1);
    for (int j = 0; j < top_; ++j) find_row(j);
  }

  // 0 where one of the two modules is.
  std::int64_t operator()(int i, int j) const {
    return i < 1 || i > n_ || j < 0 || j >= top_ ? 0 : ranks_[i][j];
  }

 private:
  // No rank is larger: what is a boundary has boundary 0.
  std::int64_t bound(int i, int j) const {
    const std::int64_t incoming = known(i + 1, j - 1);
    const std::int64_t outgoing = known(i - 1, j + 1);
    return std::min(K_.no_of_critical(i, j) - incoming, K_.no_of_critical(i - 1, j + 1) - outgoing);
  }

  // A rank, 0 as long as it is not known.
  std::int64_t known(int i, int j) const { return std::max<std::int64_t>((*this)(i, j), 0); }

  bool is_injective(int i, int j) const {
    return ranks_[i][j] == K_.no_of_critical(i, j) - known(i + 1, j - 1);
  }
  bool is_surjective(int i, int j) const {
    return ranks_[i][j] == K_.no_of_critical(i - 1, j + 1) - known(i - 1, j + 1);
  }

  // The rows below j are known. In the first row with critical cells, the linear strand, all
  // boundaries after an injective one are injective; in the last row, all before a surjective one
  // are surjective. One of each kind is likely where the numbers of cells allow it first.
  void find_row(int j) {
    const bool is_first = is_linear_strand(j);
    const bool is_last = j == top_ - 1;
    int i = 1;
    while (i <= n_ && K_.no_of_critical(i, j) > K_.no_of_critical(i - 1, j + 1)) ++i;
    bool injective = false;
    for (int k = i; k <= n_; ++k) {
      set_rank(k, j, injective);
      injective = is_first && is_injective(k, j);
    }
    bool surjective = false;
    for (int k = i - 1; k >= 1; --k) {
      set_rank(k, j, surjective);
      surjective = is_last && is_surjective(k, j);
    }
  }

  bool is_linear_strand(int j) const {
    for (int lower = 0; lower < j; ++lower) {
      for (int i = 1; i <= n_; ++i) {
        if (K_.no_of_critical(i, lower) != 0) return false;
      }
    }
    return true;
  }

  void set_rank(int i, int j, bool is_bound) {
    const std::int64_t most = bound(i, j);
    ranks_[i][j] = is_bound || most == 0 ? most : boundary_rank(K_, i, j, most);
  }

  const koszul_complex& K_;
  int n_;
  int top_;
  // -1 as long as they are not known.
  std::vector<std::vector<std::int64_t>> ranks_;
};

// The table over the variables in O.
betti_table betti_over_V(const koszul_complex& K) {
  const boundary_ranks ranks(K);
  betti_table B(K.dim_V(), 0, K.top_degree());
  for (int j = 0; j <= K.top_degree(); ++j) {
    for (int i = 0; i <= K.dim_V(); ++i) {
      B.set(i, j, K.no_of_critical(i, j) - ranks(i, j) - ranks(i + 1, j - 1));
    }
  }
  return B;
}

}  // namespace

betti_table betti_numbers(const order_ideal& X, const canonical_forms& A) {
  require_meaningful(X);
  const koszul_complex K(A);
  // The other variables are combinations of those in O: linear forms of the ideal, of which
  // coordinates can be made.
  return over_more_variables(betti_over_V(K), dim - K.dim_V());
}

}  // namespace zep::points
