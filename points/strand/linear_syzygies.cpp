// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/linear_syzygies.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <numeric>
#include <optional>
#include <utility>

#include "arith/ordering.h"
#include "arith/ring.h"
#include "base/interrupt.h"
#include "linalg/row_operations.h"

namespace zep::points {

namespace {

// The number of a projective variable.
int number_of_variable(const monom& m) {
  int v = 0;
  while (v < proj - 1 && m.exp(v) == 0) ++v;
  return v;
}

// Products of variables and monomials, numbered from the greatest on.
class product_numbers {
 public:
  explicit product_numbers(const std::vector<monom>& monomials) : factors_(monomials.size()) {
    std::vector<monom> products;
    for (const monom& x : projective_variables()) {
      for (monom m : monomials) products.push_back(m *= x);
    }
    std::vector<std::uint32_t> order(products.size());
    std::iota(order.begin(), order.end(), 0U);
    // The products with each variable descend already.
    for (std::size_t end = factors_; end < order.size(); end += factors_) {
      heed_interrupt();
      const auto next = order.begin() + static_cast<std::ptrdiff_t>(end);
      std::inplace_merge(
          order.begin(), next, next + static_cast<std::ptrdiff_t>(factors_),
          [&](std::uint32_t a, std::uint32_t b) { return products[a] > products[b]; });
    }
    numbers_.resize(order.size());
    for (std::size_t k = 0; k < order.size(); ++k) {
      if (k == 0 || products[order[k]] != products[order[k - 1]]) ++size_;
      numbers_[order[k]] = size_ - 1;
    }
  }

  std::size_t size() const { return size_; }

  // The number of x_v times the monomial with the given number.
  std::size_t operator()(int v, std::size_t number) const {
    return numbers_[v * factors_ + number];
  }

 private:
  std::size_t factors_;
  std::vector<std::uint32_t> numbers_;
  std::uint32_t size_ = 0;
};

// Reduces the differences of pairs, one after the other.
class pair_reduction {
 public:
  pair_reduction(const form_vectors& G, reporter& to);

  // The syzygy of the pair; zero if its difference leaves something.
  compact_row syzygy(const linear_pair& pair);

 private:
  // x_variable * G_vector.
  struct multiple {
    int vector = -1;
    int variable = 0;
  };
  // What a pair has left, divided by its first coefficient, and how it was made.
  struct leftover {
    compact_row W;
    compact_row S;
  };

  std::size_t place_of_first_term(const multiple& m) const;
  const compact_row& row_of(const multiple& m);
  void subtract(const multiple& m, Fp8 c);
  void keep(std::size_t pivot);

  const form_vectors& G_;
  reporter& to_;
  product_numbers products_;
  // By vector and variable, made when first needed.
  std::vector<std::optional<compact_row>> multiples_;
  // By place: the first multiple of a vector that starts there, and the index of the leftover.
  std::vector<multiple> multiple_at_;
  std::vector<int> leftover_at_;
  // In pieces: as one they would be moved when they grow, many at a time.
  std::deque<leftover> leftovers_;
  // The difference and the vector of one pair in full length; the latter by variable, then vector.
  row W_;
  row S_;
};

pair_reduction::pair_reduction(const form_vectors& G, reporter& to)
    : G_(G),
      to_(to),
      products_(G.monomials()),
      multiples_(static_cast<std::size_t>(G.count()) * proj),
      multiple_at_(products_.size() * G.rank()),
      leftover_at_(multiple_at_.size(), -1),
      W_(multiple_at_.size()),
      S_(multiples_.size()) {
  for (int l = G.count() - 1; l >= 0; --l) {
    heed_interrupt();
    if (G.position(l) < 0) continue;
    for (int v = 0; v < proj; ++v) multiple_at_[place_of_first_term({l, v})] = {l, v};
  }
}

std::size_t pair_reduction::place_of_first_term(const multiple& m) const {
  const std::size_t place = G_.vector(m.vector).pivot();
  const std::size_t rank = G_.rank();
  return products_(m.variable, place / rank) * rank + place % rank;
}

const compact_row& pair_reduction::row_of(const multiple& m) {
  std::optional<compact_row>& made = multiples_[m.vector * proj + m.variable];
  if (!made) {
    const std::size_t rank = G_.rank();
    std::vector<std::uint32_t> places;
    row values;
    G_.vector(m.vector).for_each([&](std::size_t place, Fp8 c) {
      places.push_back(
          static_cast<std::uint32_t>(products_(m.variable, place / rank) * rank + place % rank));
      values.push_back(c);
    });
    made.emplace(std::move(places), std::move(values));
  }
  return *made;
}

// Subtracts c times the multiple from the difference, and notes that.
void pair_reduction::subtract(const multiple& m, Fp8 c) {
  row_of(m).subtract_from(W_, c);
  S_[m.variable * G_.count() + m.vector] -= c;
}

compact_row pair_reduction::syzygy(const linear_pair& pair) {
  std::fill(W_.begin(), W_.end(), Fp8(0));
  std::fill(S_.begin(), S_.end(), Fp8(0));
  subtract({pair.j, pair.times_j}, -Fp8(1));
  subtract({pair.i, pair.times_i}, Fp8(1));
  for (std::size_t place = 0;; ++place) {
    heed_interrupt();
    place += first_nonzero(const_row_view(W_).subspan(place));
    if (place == W_.size()) return compact_row(S_);
    if (leftover_at_[place] >= 0) {
      const auto& [W, S] = leftovers_[leftover_at_[place]];
      const Fp8 c = W_[place];
      W.subtract_from(W_, c);
      S.subtract_from(S_, c);
    } else if (multiple_at_[place].vector >= 0) {
      subtract(multiple_at_[place], W_[place]);
    } else {
      to_.mark();
      keep(place);
      return {};
    }
  }
}

// In a composite characteristic a leftover may have no inverse; it reduces nothing then.
void pair_reduction::keep(std::size_t pivot) {
  const Fp8 inverse = Fp8(1) / W_[pivot];
  if (inverse == 0) return;
  scale(W_, inverse);
  scale(S_, inverse);
  leftover_at_[pivot] = static_cast<int>(leftovers_.size());
  leftovers_.push_back({compact_row(W_), compact_row(S_)});
}

}  // namespace

std::vector<linear_pair> pairs_of_generators(const form_vectors& G) {
  std::vector<linear_pair> pairs;
  for (int i = 0; i < G.count(); ++i) {
    heed_interrupt();
    for (int j = i + 1; j < G.count(); ++j) {
      const monom& s = G.leading_monomial(i);
      const monom& t = G.leading_monomial(j);
      const monom L = lcm(s, t);
      if (L.tot_deg() - s.tot_deg() != 1) continue;
      monom times_i = L;
      monom times_j = L;
      pairs.push_back({i, j, number_of_variable(times_i /= s), number_of_variable(times_j /= t)});
    }
  }
  return pairs;
}

std::vector<first_term> first_terms_of(const form_vectors& G) {
  std::vector<first_term> terms(G.count(), {0, -1});
  for (int i = 0; i < G.count(); ++i) {
    if (G.position(i) >= 0) terms[i] = {number_of_variable(G.leading_monomial(i)), G.position(i)};
  }
  return terms;
}

std::vector<linear_pair> pairs_of_linear_vectors(const std::vector<first_term>& G) {
  int positions = 0;
  for (const first_term& t : G) positions = std::max(positions, t.position + 1);
  std::vector<std::vector<int>> at_position(positions);
  std::vector<linear_pair> pairs;
  const int n = static_cast<int>(G.size());
  for (int i = 0; i < n; ++i) {
    if (G[i].position >= 0) at_position[G[i].position].push_back(i);
  }
  std::vector<std::size_t> taken(at_position.size());
  for (int i = 0; i < n; ++i) {
    if (G[i].position < 0) continue;
    const std::vector<int>& same = at_position[G[i].position];
    heed_interrupt();
    for (std::size_t k = ++taken[G[i].position]; k < same.size(); ++k) {
      pairs.push_back({i, same[k], G[same[k]].variable, G[i].variable});
    }
  }
  return pairs;
}

form_vectors linear_syzygies(const form_vectors& G, const std::vector<linear_pair>& pairs,
                             reporter& to) {
  const progress eliminating(to, pairs.empty() ? "" : "eliminating syzygies ...\n");
  pair_reduction reduction(G, to);
  std::vector<compact_row> syzygies;
  syzygies.reserve(pairs.size());
  int remaining = static_cast<int>(pairs.size());
  for (const linear_pair& pair : pairs) {
    eliminating.count(remaining--);
    syzygies.push_back(reduction.syzygy(pair));
  }
  eliminating.end_line();
  return {projective_variables(), G.count(), std::move(syzygies)};
}

}  // namespace zep::points
