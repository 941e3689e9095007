// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/strand/linear_strand.h"

#include <utility>

#include "points/strand/linear_syzygies.h"

namespace zep::points {

namespace {

enum class zero_vectors { keep, drop };

// The vectors are those of the given level, ready to be visited.
void strand(form_vectors vectors, int level, zero_vectors zeros, reporter& to,
            const level_visitor& visit) {
  while (visit(level, vectors)) {
    const std::vector<linear_pair> pairs =
        level == 0 ? pairs_of_generators(vectors) : pairs_of_linear_vectors(vectors);
    vectors = linear_syzygies(vectors, pairs, to);
    if (zeros == zero_vectors::drop) vectors.drop_zero_vectors();
    if (vectors.count() == 0) return;
    vectors.interreduce();
    ++level;
  }
}

}  // namespace

void strand_of_generators(form_vectors generators, reporter& to, const level_visitor& visit) {
  strand(std::move(generators), 0, zero_vectors::keep, to, visit);
}

void strand_of_relations(form_vectors relations, reporter& to, const level_visitor& visit) {
  relations.interreduce();
  strand(std::move(relations), 1, zero_vectors::drop, to, visit);
}

}  // namespace zep::points
