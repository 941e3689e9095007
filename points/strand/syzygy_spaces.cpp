// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/syzygy_spaces.h"

#include <algorithm>
#include <map>
#include <utility>

#include "base/interrupt.h"
#include "linalg/combinations.h"
#include "linalg/row_operations.h"
#include "linalg/row_space.h"
#include "linalg/views.h"

namespace zep::points {

namespace {

using cell = koszul_complex::cell;
using kind = koszul_complex::kind;

// So many rows are taken into a row space at once.
constexpr std::size_t block = 512;

// The part of a chain at these places.
row at_places(const_row_view chain, const std::vector<std::size_t>& places) {
  row part;
  part.reserve(places.size());
  for (const std::size_t place : places) part.push_back(chain[place]);
  return part;
}

// The functionals, on a space of rows x with r * x = 0 for given rows r, that are coordinates of x:
// some are a basis, the free ones, and the others are combinations of these.
class solution_space {
 public:
  // Rows of n elements.
  solution_space(int n, std::vector<row> relations) {
    row_space relations_found(n);
    while (!relations.empty() && relations_found.rank() < n) {
      const std::size_t rest = relations.size() - std::min(block, relations.size());
      std::vector<row> some(std::make_move_iterator(relations.begin() + rest),
                            std::make_move_iterator(relations.end()));
      relations.resize(rest);
      relations_found.add_rows(std::move(some));
    }
    free_.assign(n, 0);
    for (const std::size_t pivot : relations_found.pivots()) free_[pivot] = -1;
    for (int& k : free_) {
      if (k == 0) k = dimension_++;
    }
    if (dimension_ == 0) return;
    pivots_ = relations_found.pivots();
    for (const row& r : relations_found.reduced()) functionals_.push_back(negative_at_free(r));
  }

  int dimension() const { return dimension_; }

  // The number of a coordinate among the free ones, or -1.
  int free(std::size_t coordinate) const { return free_[coordinate]; }

  // The coordinates that are not free, and what they are.
  const std::vector<std::size_t>& others() const { return pivots_; }
  const row& other(std::size_t k) const { return functionals_[k]; }

  // The sums of c[i] times coordinate i, for many rows c.
  std::vector<row> combinations(const std::vector<row>& cs) const {
    std::vector<row> sums(cs.size(), row(static_cast<std::size_t>(dimension_)));
    matrix of_others(static_cast<int>(pivots_.size()), static_cast<int>(cs.size()));
    for (std::size_t i = 0; i < cs.size(); ++i) {
      heed_interrupt();
      for (std::size_t k = 0; k < free_.size(); ++k) {
        if (free_[k] >= 0) sums[i][free_[k]] = cs[i][k];
      }
      for (std::size_t k = 0; k < pivots_.size(); ++k) {
        of_others[static_cast<int>(i)][k] = cs[i][pivots_[k]];
      }
    }
    if (!cs.empty() && !pivots_.empty()) {
      add_combinations(views_of(sums), of_others, const_views_of(functionals_));
    }
    return sums;
  }

 private:
  row negative_at_free(const_row_view r) const {
    row functional(static_cast<std::size_t>(dimension_));
    for (std::size_t k = 0; k < free_.size(); ++k) {
      if (free_[k] >= 0) functional[free_[k]] = -r[k];
    }
    return functional;
  }

  int dimension_ = 0;
  std::vector<int> free_;
  std::vector<std::size_t> pivots_;
  std::vector<row> functionals_;
};

// Names the coordinates, at these places.
void name_coordinates(cell_space& L, const solution_space& solutions,
                      const std::vector<std::size_t>& places) {
  for (std::size_t k = 0; k < places.size(); ++k) {
    if (solutions.free(k) >= 0) L.set_coordinate(places[k], solutions.free(k));
  }
  if (L.dimension() == 0) return;
  for (std::size_t k = 0; k < solutions.others().size(); ++k) {
    L.set_functional(places[solutions.others()[k]], solutions.other(k));
  }
}

// Names the sums of c[i] times coordinate i, block by block.
void name_combinations(cell_space& L, const solution_space& solutions,
                       std::vector<std::pair<std::size_t, row>> named) {
  if (L.dimension() == 0) return;
  while (!named.empty()) {
    std::vector<row> coefficients;
    std::vector<std::size_t> places;
    while (!named.empty() && places.size() < block) {
      places.push_back(named.back().first);
      coefficients.push_back(std::move(named.back().second));
      named.pop_back();
    }
    std::vector<row> sums = solutions.combinations(coefficients);
    for (std::size_t k = 0; k < places.size(); ++k) L.set_functional(places[k], std::move(sums[k]));
  }
}

}  // namespace

void syzygy_spaces::start(int level) {
  level_ = level;
  here_ = space(level);
  next_ = space(level + 1);
  for (int v = 0; v < K_.dim_V(); ++v) contractions_[v] = contraction(v);
}

void syzygy_spaces::advance() {
  ++level_;
  here_ = std::move(next_);
  if (here_->dimension() == 0) {
    next_ = std::make_unique<cell_space>(0, 0);
    std::fill(contractions_.begin(), contractions_.end(), std::vector<cell_space::summand>());
    return;
  }
  next_ = space(level_ + 1);
  for (int v = 0; v < K_.dim_V(); ++v) contractions_[v] = contraction(v);
}

std::vector<row> syzygy_spaces::contracted(int v,
                                           std::span<const const_row_view> functionals) const {
  return next().sums(contractions_[v], functionals);
}

spaces_of_ideal::spaces_of_ideal(const koszul_complex& K, int alpha)
    : syzygy_spaces(K), alpha_(alpha) {
  start(0);
}

// A cycle is given by its critical cells. Those of its sources follow: each boundary is freed of
// targets by sources.
std::unique_ptr<cell_space> spaces_of_ideal::space(int level) const {
  const koszul_complex& K = complex();
  const std::vector<cell> cells = K.critical_cells(level + 1, alpha_ - 1);
  const std::vector<std::size_t> bounds = K.places(K.critical_cells(level, alpha_));
  const int n = static_cast<int>(cells.size());
  std::vector<row> relations(bounds.size(), row(cells.size()));
  std::map<std::size_t, row> sources;
  for (int k = 0; k < n; ++k) {
    heed_interrupt();
    const row chain = K.small_boundary(cells[k], [&](std::size_t, const cell& source, Fp8 c) {
      row& coefficients = sources[K.place(source)];
      coefficients.resize(cells.size());
      coefficients[k] = c;
    });
    for (std::size_t r = 0; r < bounds.size(); ++r) relations[r][k] = chain[bounds[r]];
  }
  const solution_space solutions(n, std::move(relations));
  auto L = std::make_unique<cell_space>(K.width(level + 1, alpha_ - 1), solutions.dimension());
  name_coordinates(*L, solutions, K.places(cells));
  name_combinations(
      *L, solutions,
      {std::make_move_iterator(sources.begin()), std::make_move_iterator(sources.end())});
  return L;
}

// A cell of the next level becomes one of this level, which is a coordinate or not; a target is
// changed by the boundary of its source, a sum of cells of which none is a target.
std::vector<cell_space::summand> spaces_of_ideal::contraction(int v) const {
  const koszul_complex& K = complex();
  std::vector<cell_space::summand> summands;
  std::size_t from = 0;
  const auto add = [&](const cell& c, Fp8 sign) {
    const int k = here().coordinate(K.place(c));
    if (k >= 0) summands.push_back({from, k, sign});
  };
  const std::vector<int> members = K.members(alpha_ - 1);
  for (const subset T : subsets(K.dim_V(), level() + 2)) {
    heed_interrupt();
    for (const int m : members) {
      const cell contracted{without(T, v), m};
      const Fp8 sign = sign_without(T, v);
      if (contains(T, v) && K.kind_of({T, m}) != kind::target) {
        if (K.kind_of(contracted) != kind::target) {
          add(contracted, sign);
        } else {
          const auto [S, quotient] = K.source_of(contracted);
          const int w = greatest(S);
          const Fp8 c = -sign * sign_without(S, w);
          for (subset rest = without(S, w); rest != 0; rest &= rest - 1) {
            const int u = least(rest);
            add({without(S, u), K.times(quotient, u).position}, c * sign_without(S, u));
          }
        }
      }
      ++from;
    }
  }
  return summands;
}

spaces_of_module::spaces_of_module(const koszul_complex& K) : syzygy_spaces(K) { start(0); }

// There are no sources in the top degree. A target is a combination of critical cells modulo
// boundaries.
std::unique_ptr<cell_space> spaces_of_module::space(int level) const {
  const koszul_complex& K = complex();
  const int i = K.dim_V() - level;
  const int top = K.top_degree();
  const std::vector<std::size_t> places = K.places(K.critical_cells(i, top));
  std::vector<row> relations;
  for (const cell& c : K.critical_cells(i + 1, top - 1)) {
    heed_interrupt();
    relations.push_back(at_places(K.small_boundary(c), places));
  }
  const solution_space solutions(static_cast<int>(places.size()), std::move(relations));
  auto L = std::make_unique<cell_space>(K.width(i, top), solutions.dimension());
  name_coordinates(*L, solutions, places);
  if (L->dimension() == 0) return L;
  std::vector<std::pair<std::size_t, row>> targets;
  for (const subset T : subsets(K.dim_V(), i)) {
    for (const int m : K.members(top)) {
      heed_interrupt();
      if (K.kind_of({T, m}) != kind::target) continue;
      row chain(K.width(i, top));
      const std::size_t place = K.place({T, m});
      chain[place] = 1;
      K.clear_targets(chain, i, top);
      targets.emplace_back(place, at_places(chain, places));
    }
  }
  name_combinations(*L, solutions, std::move(targets));
  return L;
}

// The value of a contracted functional at a cell is that at the contracted cell.
std::vector<cell_space::summand> spaces_of_module::contraction(int v) const {
  const koszul_complex& K = complex();
  std::vector<cell_space::summand> summands;
  std::size_t from = 0;
  const std::vector<int> members = K.members(K.top_degree());
  for (const subset T : subsets(K.dim_V(), K.dim_V() - level())) {
    heed_interrupt();
    for (const int m : members) {
      const int k = here().coordinate(from++);
      if (k < 0 || !contains(T, v)) continue;
      summands.push_back({K.place({without(T, v), m}), k, sign_without(T, v)});
    }
  }
  return summands;
}

}  // namespace zep::points
