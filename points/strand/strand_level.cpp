// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/strand_level.h"

#include <algorithm>
#include <set>
#include <utility>

#include "base/interrupt.h"
#include "linalg/combinations.h"
#include "linalg/row_operations.h"
#include "linalg/views.h"

namespace zep::points {

namespace {

// So many coordinates are looked at at once.
constexpr std::size_t block = 256;

// For each vector its number among those that are not zero, or -1.
std::vector<int> numbers_of(const std::vector<first_term>& first_terms) {
  std::vector<int> numbers;
  numbers.reserve(first_terms.size());
  int next = 0;
  for (const first_term& t : first_terms) numbers.push_back(t.position < 0 ? -1 : next++);
  return numbers;
}

// The pairs whose first vector has the multiple that reduces: the first pair at its vector and
// variable.
std::vector<bool> pairs_with_reducing(const std::vector<linear_pair>& pairs) {
  std::set<std::pair<int, int>> seen;
  std::vector<bool> first;
  first.reserve(pairs.size());
  for (const linear_pair& q : pairs) {
    heed_interrupt();
    first.push_back(seen.emplace(q.j, q.times_j).second);
  }
  return first;
}

// The functionals in terms of the rows that the space was given, with unit rows as tails.
std::vector<row> expressed(std::vector<row> functionals, const row_space& space) {
  const int n = space.rank();
  for (row& f : functionals) f.resize(2 * static_cast<std::size_t>(n));
  space.reduce(views_of(functionals));
  for (row& f : functionals) {
    f.erase(f.begin(), f.begin() + n);
    scale(f, -Fp8(1));
  }
  return functionals;
}

// The space of these independent rows, with unit rows as tails.
row_space with_unit_tails(const std::vector<row>& rows) {
  const std::size_t n = rows.size();
  row_space space(static_cast<int>(n), static_cast<int>(n));
  for (std::size_t first = 0; first < n; first += block) {
    std::vector<row> some(rows.begin() + static_cast<std::ptrdiff_t>(first),
                          rows.begin() + static_cast<std::ptrdiff_t>(std::min(first + block, n)));
    for (std::size_t k = 0; k < some.size(); ++k) {
      some[k].resize(2 * n);
      some[k][n + first + k] = 1;
    }
    space.add_rows(std::move(some));
  }
  return space;
}

}  // namespace

std::vector<int> nonzero_vectors(const std::vector<first_term>& first_terms) {
  std::vector<int> indices;
  for (std::size_t i = 0; i < first_terms.size(); ++i) {
    if (first_terms[i].position >= 0) indices.push_back(static_cast<int>(i));
  }
  return indices;
}

std::vector<row> coordinates_of(const syzygy_spaces& L, const std::vector<row>& coordinates,
                                const std::vector<multiple>& multiples) {
  std::vector<row> all(multiples.size());
  for (int v = 0; v < L.no_of_variables(); ++v) {
    std::vector<std::size_t> indices;
    std::vector<const_row_view> functionals;
    for (std::size_t i = 0; i < multiples.size(); ++i) {
      if (multiples[i].variable != v) continue;
      indices.push_back(i);
      functionals.emplace_back(coordinates[multiples[i].vector]);
    }
    if (indices.empty()) continue;
    std::vector<row> found = L.contracted(v, functionals);
    for (std::size_t k = 0; k < indices.size(); ++k) all[indices[k]] = std::move(found[k]);
  }
  return all;
}

level_syzygies::level_syzygies(const syzygy_spaces& L, const strand_level& G,
                               const std::vector<linear_pair>& pairs)
    : triangular_(L.next().dimension()) {
  decide(L, G, pairs);
  triangulate(starts(L, G));
}

// From the last pair on: one has a syzygy if its coordinate is independent of those behind it.
void level_syzygies::decide(const syzygy_spaces& L, const strand_level& G,
                            const std::vector<linear_pair>& pairs) {
  const std::vector<bool> reducing = pairs_with_reducing(pairs);
  const std::vector<int> numbers = numbers_of(G.first_terms);
  outcomes_.assign(pairs.size(), pair_outcome::leftover);
  std::vector<std::size_t> to_decide;
  for (std::size_t q = pairs.size(); q-- > 0;) {
    if (reducing[q]) {
      to_decide.push_back(q);
    } else {
      outcomes_[q] = pair_outcome::repetition;
    }
  }
  row_space coordinates(L.next().dimension());
  for (std::size_t first = 0; first < to_decide.size(); first += block) {
    if (coordinates.rank() == L.next().dimension()) break;
    const std::size_t end = std::min(first + block, to_decide.size());
    std::vector<multiple> multiples;
    for (std::size_t k = first; k < end; ++k) {
      const linear_pair& q = pairs[to_decide[k]];
      multiples.push_back({q.times_j, numbers[q.j]});
    }
    std::vector<row> found = coordinates_of(L, G.coordinates, multiples);
    const std::vector<bool> independent = coordinates.add_rows(found);
    for (std::size_t k = first; k < end; ++k) {
      if (!independent[k - first]) continue;
      outcomes_[to_decide[k]] = pair_outcome::syzygy;
      at_pairs_.push_back(std::move(found[k - first]));
    }
  }
  std::reverse(at_pairs_.begin(), at_pairs_.end());
}

// Place by place, from the greatest first term on: a vector starts where the coordinate is
// independent of those before.
std::vector<level_syzygies::start> level_syzygies::starts(const syzygy_spaces& L,
                                                          const strand_level& G) {
  const auto n = static_cast<std::size_t>(L.next().dimension());
  const std::vector<int> positions = nonzero_vectors(G.first_terms);
  std::vector<start> found;
  row_space before(L.next().dimension());
  for (int v = 0; v < L.no_of_variables(); ++v) {
    for (std::size_t first = 0; first < positions.size(); first += block) {
      if (found.size() == n) return found;
      std::vector<multiple> places;
      for (std::size_t k = first; k < std::min(first + block, positions.size()); ++k) {
        places.push_back({v, static_cast<int>(k)});
      }
      std::vector<row> coordinates = coordinates_of(L, G.coordinates, places);
      const std::vector<bool> independent = before.add_rows(coordinates);
      for (std::size_t k = 0; k < places.size(); ++k) {
        if (!independent[k]) continue;
        found.push_back({{v, positions[first + k]}, std::move(coordinates[k])});
      }
    }
  }
  return found;
}

// The syzygies are the basis that is dual to their coordinates at their pairs; so a coordinate of
// T, expressed by these, has its values at the syzygies as coefficients. The first syzygy that is
// not zero at a place, after reduction, starts there.
void level_syzygies::triangulate(std::vector<start> starts) {
  first_terms_.assign(starts.size(), {0, -1});
  const row_space pairs = with_unit_tails(at_pairs_);
  for (std::size_t first = 0; first < starts.size(); first += block) {
    std::vector<row> some;
    for (std::size_t k = first; k < std::min(first + block, starts.size()); ++k) {
      some.push_back(std::move(starts[k].coordinate));
    }
    triangular_.add_rows(expressed(std::move(some), pairs));
  }
  for (std::size_t k = 0; k < starts.size(); ++k) {
    first_terms_[triangular_.pivots()[k]] = starts[k].term;
  }
}

// What is left of the values at a place, when those of the vectors that start before it are
// subtracted, is the coordinate of the vector that starts there.
std::vector<row> level_syzygies::coordinates() const {
  const int n = triangular_.rank();
  std::vector<row> result(at_pairs_.size(), row(at_pairs_.size()));
  matrix combinations(n, n);
  std::vector<row_view> in_place;
  for (int r = 0; r < n; ++r) {
    heed_interrupt();
    std::copy(triangular_[r].begin(), triangular_[r].end(), combinations[r].begin());
    scale(combinations[r], triangular_.lead(r));
    in_place.emplace_back(result[triangular_.pivots()[r]]);
  }
  if (n > 0) {
    add_combinations(in_place, combinations, const_views_of(at_pairs_));
  }
  return result;
}

}  // namespace zep::points
