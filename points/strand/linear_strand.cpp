// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/linear_strand.h"

#include <utility>

#include "base/interrupt.h"
#include "base/paranoid.h"
#include "points/strand/level_vectors.h"
#include "points/strand/linear_syzygies.h"
#include "points/strand/strand_level.h"

namespace zep::points {

namespace {

enum class zero_vectors { keep, drop };

// The vectors are those of the given level.
void pair_by_pair(form_vectors vectors, int level, zero_vectors zeros, reporter& to,
                  const strand_watcher& watcher) {
  while (watcher.sees(level, vectors.no_of_nonzero(), vectors)) {
    const std::vector<linear_pair> pairs = level == 0
                                               ? pairs_of_generators(vectors)
                                               : pairs_of_linear_vectors(first_terms_of(vectors));
    vectors = linear_syzygies(vectors, pairs, to);
    if (zeros == zero_vectors::drop) vectors.drop_zero_vectors();
    if (vectors.count() == 0) return;
    vectors.interreduce();
    ++level;
  }
}

void tell(const std::vector<pair_outcome>& outcomes, const progress& eliminating, reporter& to) {
  int remaining = static_cast<int>(outcomes.size());
  for (const pair_outcome outcome : outcomes) {
    heed_interrupt();
    eliminating.count(remaining--);
    if (outcome == pair_outcome::leftover) to.mark();
  }
  eliminating.end_line();
}

// The list of the next level: the syzygies have these first terms, one after the other.
std::vector<first_term> next_list(const std::vector<pair_outcome>& outcomes,
                                  const std::vector<first_term>& first_terms, zero_vectors zeros) {
  if (zeros == zero_vectors::drop) return first_terms;
  std::vector<first_term> list(outcomes.size(), {0, -1});
  auto next = first_terms.begin();
  for (std::size_t q = 0; q < outcomes.size(); ++q) {
    if (outcomes[q] == pair_outcome::syzygy) list[q] = *next++;
  }
  return list;
}

// G is the given level, where L is, and has been seen.
void by_coordinates(syzygy_spaces& L, strand_level G, form_vectors vectors, int level,
                    zero_vectors zeros, reporter& to, const strand_watcher& watcher) {
  while (true) {
    const std::vector<linear_pair> pairs =
        level == 0 ? pairs_of_generators(vectors) : pairs_of_linear_vectors(G.first_terms);
    const progress eliminating(to, pairs.empty() ? "" : "eliminating syzygies ...\n");
    const level_syzygies found(L, G, pairs);
    tell(found.outcomes(), eliminating, to);
    strand_level H{next_list(found.outcomes(), found.first_terms(), zeros), {}};
    if (H.first_terms.empty()) return;
    if (watcher.visit) {
      H.coordinates = found.coordinates();
      vectors = next_vectors(L, G, vectors, H);
    }
    ++level;
    if (!watcher.sees(level, L.next().dimension(), vectors)) return;
    L.advance();
    if (!watcher.visit && L.next().dimension() > 0) H.coordinates = found.coordinates();
    G = std::move(H);
  }
}

// Each generator's coordinate is that of its leading monomial.
strand_level level_of_generators(const form_vectors& generators, const koszul_complex& K,
                                 const cell_space& L) {
  strand_level G;
  for (int j = 0; j < generators.count(); ++j) {
    row& coordinate = G.coordinates.emplace_back(static_cast<std::size_t>(L.dimension()));
    coordinate[L.coordinate(K.place(K.cell_of_product(generators.leading_monomial(j))))] = 1;
    G.first_terms.push_back({0, 0});
  }
  return G;
}

}  // namespace

void strand_of_generators(form_vectors generators, reporter& to, const strand_watcher& watcher) {
  pair_by_pair(std::move(generators), 0, zero_vectors::keep, to, watcher);
}

void strand_of_ideal(form_vectors generators, const koszul_complex& K, reporter& to,
                     const strand_watcher& watcher) {
  if (!watcher.sees(0, generators.count(), generators)) return;
  spaces_of_ideal L(K, generators.leading_monomial(0).tot_deg());
  ensure("there is a coordinate for each generator",
         [&] { return L.here().dimension() == generators.count(); });
  strand_level G = level_of_generators(generators, K, L.here());
  by_coordinates(L, std::move(G), std::move(generators), 0, zero_vectors::keep, to, watcher);
}

void strand_of_relations(form_vectors relations, reporter& to, const strand_watcher& watcher) {
  relations.interreduce();
  pair_by_pair(std::move(relations), 1, zero_vectors::drop, to, watcher);
}

void strand_of_module(form_vectors relations, const koszul_complex& K, reporter& to,
                      const strand_watcher& watcher) {
  relations.interreduce();
  if (!watcher.sees(1, relations.no_of_nonzero(), relations)) return;
  spaces_of_module L(K);
  ensure("there is a coordinate for each relation",
         [&] { return L.next().dimension() == relations.no_of_nonzero(); });
  strand_level G{first_terms_of(relations), coordinates_of_relations(L, relations)};
  L.advance();
  by_coordinates(L, std::move(G), std::move(relations), 1, zero_vectors::drop, to, watcher);
}

}  // namespace zep::points
