#include "points/strand/linear_strand.h"

#include <utility>

#include "points/strand/linear_syzygies.h"

namespace zep::points {

namespace {

enum class zero_vectors { keep, drop };

// The vectors are those of the given level, ready to be reported.
void strand(form_vectors vectors, int level, zero_vectors zeros, const level_report& report) {
  while (report(level, vectors)) {
    const std::vector<linear_pair> pairs =
        level == 0 ? pairs_of_generators(vectors) : pairs_of_linear_vectors(vectors);
    vectors = linear_syzygies(vectors, pairs);
    if (zeros == zero_vectors::drop) vectors.drop_zero_vectors();
    if (vectors.count() == 0) return;
    vectors.interreduce();
    ++level;
  }
}

}  // namespace

void strand_of_generators(form_vectors generators, const level_report& report) {
  strand(std::move(generators), 0, zero_vectors::keep, report);
}

void strand_of_relations(form_vectors relations, const level_report& report) {
  relations.interreduce();
  strand(std::move(relations), 1, zero_vectors::drop, report);
}

}  // namespace zep::points
