// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "points/strand/linear_strand.h"
#include "points/strand/linid.h"
#include "points/strand/linom.h"
#include "tests/points/plain_presentation.h"
#include "tests/points/plain_strand.h"
#include "tests/points/strand_sets.h"

namespace zep::tests {
namespace {

TEST(LinearStrandMeaning, NumbersAreThoseOfTheResolutionOfTheRing) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    const strand_starts start(points);
    const std::vector<int> I_X = linid(start.min_Ix, start.X, start.A, nobody(), nullptr);
    const std::vector<int> w_R = linom(start.w_R, start.X, start.A, nobody(), nullptr);
    const plain_artinian artinian(points);
    const plain_betti betti(artinian);
    const int D = artinian.top_degree();
    ASSERT_EQ(static_cast<int>(I_X.size()), dim);
    ASSERT_EQ(static_cast<int>(w_R.size()), dim);
    for (int i = 1; i <= dim; ++i) {
      ASSERT_EQ(I_X[i - 1], betti(i, i + start.X.H.alpha - 1)) << "module " << i;
      ASSERT_EQ(w_R[i - 1], betti(i, i + D)) << "module " << i;
    }
  });
}

// The vectors of all levels, as components.
using vectors_by_level = std::vector<std::vector<plain_vector>>;

strand_watcher collection(vectors_by_level& levels) {
  const auto collect = [&levels](int, const form_vectors& vectors) {
    levels.emplace_back();
    for (int i = 0; i < vectors.count(); ++i) levels.back().push_back(vectors.components(i));
    return true;
  };
  return {[](int, int) {}, collect};
}

vectors_by_level levels_of_I_X(const ideal& min_Ix) {
  vectors_by_level levels;
  strand_of_generators(vectors_of(plain_generators(min_Ix).vectors, 1), nobody(),
                       collection(levels));
  return levels;
}

// With the generators, on which the relations say nothing, left out.
vectors_by_level levels_of_w_R(const presentation& w_R) {
  vectors_by_level levels;
  const int rank = plain_no_of_generators(w_R);
  strand_of_relations(vectors_of(plain_relations(w_R, rank), rank), nobody(), collection(levels));
  return levels;
}

bool is_zero(const plain_vector& v) {
  return std::all_of(v.begin(), v.end(), [](const polynomial& f) { return sign(f) == 0; });
}

// The sum of the components times the vectors.
plain_vector combination(const plain_vector& components, const std::vector<plain_vector>& vectors) {
  plain_vector sum = zero_vector(size_of(vectors[0]));
  for (std::size_t i = 0; i < vectors.size(); ++i) {
    if (sign(components[i]) == 0) continue;
    for (std::size_t k = 0; k < sum.size(); ++k) {
      if (sign(vectors[i][k]) != 0) sum[k] += components[i] * vectors[i][k];
    }
  }
  return sum;
}

bool is_linear(const polynomial& f) {
  for (int i = 0; i < f.no_of_monoms() && sign(f) != 0; ++i) {
    const monom& m = f.term(i);
    if (m.dim() != proj || m.tot_deg() + m.exp(proj - 1) != 1) return false;
  }
  return true;
}

// The dimension of the space that the vectors span.
int dimension(const std::vector<plain_vector>& vectors) {
  std::map<std::pair<std::size_t, exponents>, std::size_t> coordinate;
  const auto coordinate_of = [&](std::size_t k, const monom& m) {
    exponents e = exponents_of(m);
    e.push_back(m.exp(proj - 1));
    return coordinate.emplace(std::pair(k, e), coordinate.size()).first->second;
  };
  std::vector<std::map<std::size_t, int>> sparse;
  for (const plain_vector& v : vectors) {
    sparse.emplace_back();
    for (std::size_t k = 0; k < v.size(); ++k) {
      for (int i = 0; i < v[k].no_of_monoms() && sign(v[k]) != 0; ++i) {
        sparse.back()[coordinate_of(k, v[k].term(i))] = v[k].coef(i).value();
      }
    }
  }
  plain_span span;
  for (const auto& entries : sparse) {
    std::vector<int> row(coordinate.size(), 0);
    for (const auto& [place, c] : entries) row[place] = c;
    span.add(std::move(row));
  }
  return span.rank();
}

std::vector<plain_vector> products_with_variables(const std::vector<plain_vector>& vectors) {
  std::vector<plain_vector> products;
  for (const plain_vector& v : vectors) {
    if (is_zero(v)) continue;
    for (int x = 0; x < proj; ++x) {
      products.push_back(v);
      for (polynomial& f : products.back()) f *= projective_variable(x);
    }
  }
  return products;
}

int no_of_nonzero(const std::vector<plain_vector>& vectors) {
  return static_cast<int>(std::count_if(vectors.begin(), vectors.end(),
                                        [](const plain_vector& v) { return !is_zero(v); }));
}

// The dimension of the space of linear syzygies among the vectors that are not zero.
int no_of_linear_syzygies(const std::vector<plain_vector>& vectors) {
  const std::vector<plain_vector> products = products_with_variables(vectors);
  return size_of(products) - dimension(products);
}

// Each level is a basis of the linear syzygies among the vectors of the level before.
void expect_syzygies(const vectors_by_level& levels) {
  for (std::size_t k = 0; k < levels.size(); ++k) {
    const int next = k + 1 < levels.size() ? no_of_nonzero(levels[k + 1]) : 0;
    ASSERT_EQ(no_of_linear_syzygies(levels[k]), next);
    ASSERT_EQ(dimension(levels[k]), no_of_nonzero(levels[k]));
    for (const plain_vector& v : levels[k]) {
      if (k == 0) continue;
      ASSERT_EQ(v.size(), levels[k - 1].size());
      ASSERT_TRUE(std::all_of(v.begin(), v.end(), is_linear));
      ASSERT_TRUE(is_zero(combination(v, levels[k - 1])));
    }
  }
}

TEST(LinearStrandMeaning, VectorsOfTheIdealAreABasisOfTheLinearSyzygies) {
  for_each_set([](const std::vector<coordinates>& points) {
    // The largest take most of the time.
    if (dim == 5 && points.size() > 20) return;
    expect_syzygies(levels_of_I_X(strand_starts(points).min_Ix));
  });
}

TEST(LinearStrandMeaning, VectorsOfTheCanonicalModuleAreABasisOfTheLinearSyzygies) {
  for_each_set([](const std::vector<coordinates>& points) {
    const vectors_by_level levels = levels_of_w_R(strand_starts(points).w_R);
    for (const plain_vector& v : levels[0]) ASSERT_TRUE(std::all_of(v.begin(), v.end(), is_linear));
    expect_syzygies(levels);
  });
}

}  // namespace
}  // namespace zep::tests
