// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/level_vectors.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "arith/ordering.h"
#include "arith/ring.h"
#include "base/interrupt.h"
#include "linalg/combinations.h"
#include "linalg/row_operations.h"
#include "linalg/views.h"

namespace zep::points {

namespace {

// So many rows are taken into a row space at once.
constexpr std::ptrdiff_t block = 256;

// The unit rows of length n, each to be given its number.
std::vector<row> unit_rows(std::size_t n) {
  std::vector<row> rows(n, row(n));
  for (std::size_t k = 0; k < n; ++k) rows[k][k] = 1;
  return rows;
}

// The rows y with A y = b: A is square and regular, its rows and those of b are given one by one.
std::vector<row> solutions(std::vector<row> A, const std::vector<row>& b) {
  const std::size_t n = A.size();
  if (n == 0) return {};
  const std::size_t width = b.front().size();
  for (std::size_t r = 0; r < n; ++r) A[r].insert(A[r].end(), b[r].begin(), b[r].end());
  row_space system(static_cast<int>(n), static_cast<int>(width));
  for (auto first = A.begin(); first != A.end();) {
    const auto end = first + std::min<std::ptrdiff_t>(block, A.end() - first);
    system.add_rows({std::make_move_iterator(first), std::make_move_iterator(end)});
    first = end;
  }
  std::vector<row> reduced = system.reduced();
  std::vector<row> y(n);
  for (std::size_t k = 0; k < n; ++k) {
    reduced[k].erase(reduced[k].begin(), reduced[k].begin() + static_cast<std::ptrdiff_t>(n));
    y[system.pivots()[k]] = std::move(reduced[k]);
  }
  return y;
}

// The values of functionals at the basis that is dual to the coordinates, one row for each
// functional.
std::vector<row> values(const std::vector<row>& functionals, const std::vector<row>& inverse) {
  std::vector<row> result(functionals.size(), row(inverse.size()));
  matrix coefficients(static_cast<int>(inverse.size()), static_cast<int>(functionals.size()));
  for (std::size_t i = 0; i < functionals.size(); ++i) {
    std::copy(functionals[i].begin(), functionals[i].end(),
              coefficients[static_cast<int>(i)].begin());
  }
  if (!functionals.empty() && !inverse.empty()) {
    add_combinations(views_of(result), coefficients, const_views_of(inverse));
  }
  return result;
}

// That syzygies are 0 at certain terms with X_0. With y_(v,j) the coordinates of a syzygy at x_v
// G_j, and those at X_0 G_j unknown, condition r is
//
//     sum over j of unknown[r][j] * y_(X_0,j)  =  - sum of known c[j] * y_(v,j)
//
// over the entries (r, c) of by_variable[v].
struct homogeniser_conditions {
  homogeniser_conditions(std::size_t n, int variables)
      : unknown(unit_rows(n)), by_variable(variables) {}

  std::vector<row> unknown;
  std::vector<std::vector<std::pair<std::size_t, row>>> by_variable;
};

// At X_0 times the leading monomials of polynomials that are reduced, of which G_j has c at m and
// x_v * m is the leading monomial, c enters at (v, j).
homogeniser_conditions conditions_of_generators(const form_vectors& G) {
  const auto n = static_cast<std::size_t>(G.count());
  homogeniser_conditions conditions(n, dim);
  // By monomial m with X_0: where it is needed, the generator and the variable.
  std::unordered_map<monom, std::vector<std::pair<std::size_t, int>>, monom_hash, monom_equal> uses;
  for (std::size_t r = 0; r < n; ++r) {
    const monom& lead = G.leading_monomial(static_cast<int>(r));
    for (int v = 0; v < dim; ++v) {
      if (lead.exp(v) > 0) uses[lead / projective_variable(v)].emplace_back(r, v);
    }
  }
  std::vector<std::vector<row>> entries(dim, std::vector<row>(n));
  for (std::size_t j = 0; j < n; ++j) {
    heed_interrupt();
    G.vector(static_cast<int>(j)).for_each([&](std::size_t place, Fp8 c) {
      const monom& m = G.monomials()[place];
      if (m.exp(proj - 1) != 1) return;
      const auto found = uses.find(m);
      if (found == uses.end()) return;
      for (const auto& [r, v] : found->second) {
        entries[v][r].resize(n);
        entries[v][r][j] = c;
      }
    });
  }
  for (int v = 0; v < dim; ++v) {
    for (std::size_t r = 0; r < n; ++r) {
      if (!entries[v][r].empty()) conditions.by_variable[v].emplace_back(r, entries[v][r]);
    }
  }
  return conditions;
}

// At X_0 times the first terms of vectors of linear forms: where vector r starts with x_v at a
// position, the entries of the G_j there at x_v are those of the unknown, those at X_0 enter at
// (v, j).
homogeniser_conditions conditions_of_linear_vectors(const form_vectors& G,
                                                    const std::vector<first_term>& first_terms) {
  const std::vector<int> nonzero = nonzero_vectors(first_terms);
  const std::size_t n = nonzero.size();
  const auto rank = static_cast<std::size_t>(G.rank());
  homogeniser_conditions conditions(n, dim);
  conditions.unknown.assign(n, row(n));
  std::vector<row> at_X_0(n, row(n));
  // By place: the vector that starts there. By position: those that start there.
  std::vector<int> starts(G.width(), -1);
  std::vector<std::vector<std::size_t>> at_position(rank);
  for (std::size_t r = 0; r < n; ++r) {
    starts[G.vector(nonzero[r]).pivot()] = static_cast<int>(r);
    at_position[first_terms[nonzero[r]].position].push_back(r);
  }
  for (std::size_t j = 0; j < n; ++j) {
    heed_interrupt();
    G.vector(nonzero[j]).for_each([&](std::size_t place, Fp8 c) {
      if (starts[place] >= 0) conditions.unknown[starts[place]][j] = c;
      if (G.monomials()[place / rank].exp(proj - 1) == 0) return;
      for (const std::size_t r : at_position[place % rank]) at_X_0[r][j] = c;
    });
  }
  for (std::size_t r = 0; r < n; ++r) {
    conditions.by_variable[first_terms[nonzero[r]].variable].emplace_back(r, std::move(at_X_0[r]));
  }
  return conditions;
}

// The coordinates at X_0 times each vector, rows over the syzygies like the given ones.
std::vector<row> coordinates_at_X_0(const homogeniser_conditions& conditions,
                                    const std::vector<std::vector<row>>& y, std::size_t syzygies) {
  std::vector<row> right(conditions.unknown.size(), row(syzygies));
  for (std::size_t v = 0; v < y.size(); ++v) {
    const auto& entries = conditions.by_variable[v];
    if (entries.empty() || y[v].empty()) continue;
    std::vector<row_view> sums;
    matrix coefficients(static_cast<int>(y[v].size()), static_cast<int>(entries.size()));
    for (std::size_t k = 0; k < entries.size(); ++k) {
      sums.emplace_back(right[entries[k].first]);
      const row_view negative = coefficients[static_cast<int>(k)];
      std::copy(entries[k].second.begin(), entries[k].second.end(), negative.begin());
      scale(negative, -Fp8(1));
    }
    add_combinations(sums, coefficients, const_views_of(y[v]));
  }
  return solutions(conditions.unknown, right);
}

// The vectors with these coordinates: y[v][j], a row over the vectors that are not zero, belongs to
// x_v and the j-th position that counts.
form_vectors put_together(const std::vector<std::vector<row>>& y, const std::vector<int>& positions,
                          int rank, const std::vector<first_term>& first_terms) {
  // So many vectors at once are gathered from rows across.
  constexpr std::size_t together = 64;
  const std::vector<int> nonzero = nonzero_vectors(first_terms);
  std::vector<compact_row> vectors(first_terms.size());
  std::vector<row> all(together, row(y.size() * static_cast<std::size_t>(rank)));
  for (std::size_t first = 0; first < nonzero.size(); first += together) {
    const std::size_t number = std::min(together, nonzero.size() - first);
    for (std::size_t v = 0; v < y.size(); ++v) {
      heed_interrupt();
      for (std::size_t j = 0; j < positions.size(); ++j) {
        const std::size_t place = v * rank + positions[j];
        for (std::size_t k = 0; k < number; ++k) all[k][place] = y[v][j][first + k];
      }
    }
    for (std::size_t k = 0; k < number; ++k) {
      heed_interrupt();
      vectors[nonzero[first + k]] = compact_row(all[k]);
    }
  }
  return {projective_variables(), rank, std::move(vectors)};
}

}  // namespace

form_vectors next_vectors(const syzygy_spaces& L, const strand_level& G,
                          const form_vectors& vectors, const strand_level& H) {
  const std::vector<int> positions = nonzero_vectors(G.first_terms);
  const std::vector<row> inverse = solutions(H.coordinates, unit_rows(H.coordinates.size()));
  std::vector<std::vector<row>> y;
  for (int v = 0; v < L.no_of_variables(); ++v) {
    std::vector<multiple> multiples;
    for (std::size_t j = 0; j < positions.size(); ++j) {
      multiples.push_back({v, static_cast<int>(j)});
    }
    y.push_back(values(coordinates_of(L, G.coordinates, multiples), inverse));
  }
  const bool of_polynomials = vectors.leading_monomial(positions.front()).tot_deg() > 1;
  const homogeniser_conditions conditions =
      of_polynomials ? conditions_of_generators(vectors)
                     : conditions_of_linear_vectors(vectors, G.first_terms);
  y.push_back(coordinates_at_X_0(conditions, y, inverse.size()));
  return put_together(y, positions, vectors.count(), H.first_terms);
}

std::vector<row> coordinates_of_relations(const syzygy_spaces& L, const form_vectors& relations) {
  const std::vector<first_term> first_terms = first_terms_of(relations);
  std::vector<row> values_at_first_terms =
      conditions_of_linear_vectors(relations, first_terms).unknown;
  std::vector<multiple> multiples;
  for (const first_term& t : first_terms) {
    if (t.position >= 0) multiples.push_back({t.variable, t.position});
  }
  const auto generators = unit_rows(static_cast<std::size_t>(L.here().dimension()));
  return solutions(std::move(values_at_first_terms), coordinates_of(L, generators, multiples));
}

}  // namespace zep::points
