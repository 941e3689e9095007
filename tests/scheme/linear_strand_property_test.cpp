#include <gtest/gtest.h>

#include "scheme/linear_strand.h"
#include "scheme/linid.h"
#include "scheme/linom.h"
#include "scheme/min_Ix.h"
#include "scheme/omega.h"
#include "tests/scheme/computing.h"
#include "tests/scheme/plain_presentation.h"
#include "tests/scheme/plain_strand.h"
#include "tests/scheme/point_sets.h"
#include "tests/scheme/special_sets.h"

namespace zep {
namespace {

// With everything that the strands start from.
scheme prepared(const std::vector<coordinates>& points) {
  scheme X = make_set(points);
  const silence quiet;
  min_Ix(X);
  omega(X);
  return X;
}

// Calls check(points) for random sets of up to 40 points, fewer in spaces of higher dimension.
template <class Check>
void for_each_random_set(int rounds, Check check) {
  std::mt19937 random(83);
  for (int round = 0; round < rounds; ++round) {
    for (const int p : {2, 3, 101, 251}) {
      for (int n = 2; n <= 5; ++n) {
        const ring_in_force ring(p, n, round % 2 == 0 ? term_order::deglex : term_order::degrevlex);
        const std::vector<coordinates> points =
            random_points(1 + below(random, n == 5 ? 25 : 40), random);
        SCOPED_TRACE(std::to_string(points.size()) + " points of P^" + std::to_string(n) +
                     " over F_" + std::to_string(p));
        check(points);
        if (::testing::Test::HasFailure()) return;
      }
    }
  }
}

template <class Check>
void for_each_special_or_random_set(Check check) {
  for_each_set(check);
  for_each_random_set(8, check);
}

// Counts kinds of sets, so that a test can tell that it has seen them.
struct kinds {
  void add(const plain_strand& strand) {
    const auto last = static_cast<int>(strand.levels.size()) - 1;
    long_ones += last >= 3 ? 1 : 0;
    marked += strand.marks().empty() ? 0 : 1;
    for (const plain_level& level : strand.levels) {
      if (level.no_of_nonzero() == 0 || level.no_of_nonzero() == level.count()) continue;
      ++with_zero_vectors;
      break;
    }
    ending_in_zeros += strand.levels.back().no_of_nonzero() == 0 ? 1 : 0;
  }

  int long_ones = 0;
  int marked = 0;
  int with_zero_vectors = 0;
  int ending_in_zeros = 0;
};

// Step by step. -----------------------------------------------------------------------------------

std::vector<std::string> texts(const plain_vector& components) {
  std::vector<std::string> result;
  result.reserve(components.size());
  for (const polynomial& f : components) {
    std::ostringstream text;
    f.put(text);
    result.push_back(text.str());
  }
  return result;
}

void expect_level(const form_vectors& found, const plain_level& expected) {
  ASSERT_EQ(found.rank(), expected.rank);
  ASSERT_EQ(found.count(), expected.count());
  for (int i = 0; i < found.count(); ++i) {
    ASSERT_EQ(found.position(i), expected.positions[at(i)]);
    ASSERT_EQ(texts(found.components(i)), texts(expected.vectors[at(i)]));
    if (found.position(i) < 0) continue;
    ASSERT_EQ(found.leading_monomial(i), expected.leading_monomial(i));
  }
}

// A report that compares the levels with those of the strand; `reported` counts them.
level_report comparison(const plain_strand& strand, int first, int& reported) {
  return [&strand, first, &reported](int level, const form_vectors& found) {
    const int index = level - first;
    EXPECT_EQ(index, reported);
    EXPECT_LT(index, static_cast<int>(strand.levels.size()));
    if (::testing::Test::HasFailure()) return false;
    ++reported;
    expect_level(found, strand.levels[at(index)]);
    return !::testing::Test::HasFailure();
  };
}

// Runs a strand with a report that it is given.
template <class Run>
void expect_levels(const plain_strand& strand, int first, Run run) {
  int reported = 0;
  by([&](std::ostream&) { run(comparison(strand, first, reported)); });
  ASSERT_EQ(reported, static_cast<int>(strand.levels.size()));
}

void expect_levels_of_I_X(const scheme& X, const plain_strand& strand) {
  const form_vectors generators = vectors_of(plain_generators(X).vectors, 1);
  expect_levels(strand, 0,
                [&](const level_report& report) { strand_of_generators(generators, report); });
}

void expect_levels_of_w_R(const scheme& X, const plain_strand& strand) {
  const int rank = plain_no_of_generators(X);
  const form_vectors relations = vectors_of(plain_relations(X, rank), rank);
  expect_levels(strand, 1,
                [&](const level_report& report) { strand_of_relations(relations, report); });
}

// The vanishing ideal. ----------------------------------------------------------------------------

// Vectors between the marks.
std::string screen_form_of_I_X(const plain_strand& strand) {
  std::string text = strand.levels[0].marks;
  for (std::size_t k = 1; k < strand.levels.size(); ++k) {
    text += plain_screen_form(strand.levels[k]) + strand.levels[k].marks;
  }
  return text;
}

std::string file_form_of_I_X(const plain_strand& strand) {
  std::string text;
  for (std::size_t k = 1; k < strand.levels.size(); ++k) text += plain_file_form(strand.levels[k]);
  return text;
}

std::string matrices_of_I_X(const plain_strand& strand) {
  std::string text;
  for (int k = 0; k < static_cast<int>(strand.levels.size()); ++k) {
    text += plain_matrix(strand.levels[at(k)], k + 1, "I_X");
  }
  return text;
}

void expect_linid(scheme X, const plain_strand& strand) {
  const written found = by([&](std::ostream&) { linid(X); });
  ASSERT_EQ(found.out, strand.marks());
  ASSERT_EQ(found.err, strand.progress);
  ASSERT_EQ(X.linres[0], strand.numbers);
  ASSERT_EQ(X.linid, 1);
}

void expect_linsyz(scheme X, const plain_strand& strand) {
  const written found = by([&](std::ostream&) { linsyz(std::cout, X); });
  ASSERT_EQ(found.out, screen_form_of_I_X(strand));
  ASSERT_EQ(found.err, strand.progress);
  ASSERT_EQ(X.linres[0], strand.numbers);
  ASSERT_EQ(X.linid, 0);
}

void expect_files_of_I_X(scheme X, const plain_strand& strand) {
  ASSERT_EQ(by([&](std::ostream& out) { putlinsyz(out, X); }).given, file_form_of_I_X(strand));
  ASSERT_EQ(X.linid, 0);
  ASSERT_EQ(by([&](std::ostream& out) { putlinid(out, X); }).given, matrices_of_I_X(strand));
  ASSERT_EQ(X.linid, 1);
  ASSERT_EQ(X.linres[0], strand.numbers);
}

TEST(LinearStrandProperty, OfTheIdealIsComputedReportedAndWrittenAsThePlainStrand) {
  kinds seen;
  for_each_special_or_random_set([&](const std::vector<coordinates>& points) {
    const scheme X = prepared(points);
    const plain_strand strand = plain_strand_of_I_X(X);
    expect_levels_of_I_X(X, strand);
    expect_linid(X, strand);
    expect_linsyz(X, strand);
    expect_files_of_I_X(X, strand);
    seen.add(strand);
  });
  EXPECT_GT(std::min(seen.long_ones, seen.marked), 50);
  EXPECT_GT(std::min(seen.with_zero_vectors, seen.ending_in_zeros), 20);
}

// The canonical module. ---------------------------------------------------------------------------

std::string matrices_of_w_R(const plain_strand& strand) {
  std::string text;
  for (int k = 0; k < static_cast<int>(strand.levels.size()); ++k) {
    text += plain_matrix(strand.levels[at(k)], k + 1, "w_R");
  }
  return text;
}

void expect_linom(scheme X, const plain_strand& strand) {
  const written found = by([&](std::ostream&) { linom(X); });
  ASSERT_EQ(found.out, strand.marks());
  ASSERT_EQ(found.err, strand.progress);
  ASSERT_EQ(X.linres[1], strand.numbers);
  ASSERT_EQ(X.linom, 1);
}

void expect_file_of_w_R(scheme X, const plain_strand& strand) {
  ASSERT_EQ(by([&](std::ostream& out) { putlinom(out, X); }).given, matrices_of_w_R(strand));
  ASSERT_EQ(X.linres[1], strand.numbers);
  ASSERT_EQ(X.linom, 1);
}

TEST(LinearStrandProperty, OfTheCanonicalModuleIsComputedReportedAndWrittenAsThePlainStrand) {
  kinds seen;
  for_each_special_or_random_set([&](const std::vector<coordinates>& points) {
    const scheme X = prepared(points);
    const plain_strand strand = plain_strand_of_w_R(X);
    expect_levels_of_w_R(X, strand);
    expect_linom(X, strand);
    expect_file_of_w_R(X, strand);
    seen.add(strand);
  });
  EXPECT_GT(std::min(seen.long_ones, seen.marked), 50);
}

TEST(LinearStrandProperty, LinomsyzPrintsTheFirstLevelOfThePlainStrand) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    scheme X = prepared(points);
    const plain_strand strand = plain_strand_of_w_R(X, plain_extent::linear_relations);
    const written found = by([&](std::ostream&) { linomsyz(std::cout, X); });
    ASSERT_EQ(found.out, plain_screen_form(strand.levels[0]));
    ASSERT_EQ(found.err, strand.progress);
    ASSERT_EQ(by([&](std::ostream& out) { putlinomsyz(out, X); }).given,
              plain_file_form(strand.levels[0]));
    ASSERT_EQ(X.linres[1], strand.numbers);
    ASSERT_EQ(X.linom, 0);
  });
}

TEST(LinearStrandProperty, MarksAppearWithoutProgress) {
  const int before = verbose;
  verbose = 0;
  int marked = 0;
  for_each_random_set(2, [&](const std::vector<coordinates>& points) {
    scheme X = prepared(points);
    const plain_strand I_X = plain_strand_of_I_X(X);
    const plain_strand w_R = plain_strand_of_w_R(X);
    const written found = by([&](std::ostream&) {
      linid(X);
      linom(X);
    });
    ASSERT_EQ(found.out, I_X.marks() + w_R.marks());
    ASSERT_EQ(found.err, "");
    marked += found.out.empty() ? 0 : 1;
  });
  verbose = before;
  EXPECT_GT(marked, 10);
}

// What the numbers and vectors mean. --------------------------------------------------------------

TEST(LinearStrandProperty, NumbersAreThoseOfTheResolutionOfTheRing) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    scheme X = prepared(points);
    by([&](std::ostream&) {
      linid(X);
      linom(X);
    });
    const plain_artinian artinian(points);
    const plain_betti betti(artinian);
    const int D = artinian.top_degree();
    ASSERT_EQ(static_cast<int>(X.linres[0].size()), dim);
    ASSERT_EQ(static_cast<int>(X.linres[1].size()), dim);
    for (int i = 1; i <= dim; ++i) {
      ASSERT_EQ(X.linres[0][at(i - 1)], betti(i, i + X.alpha - 1)) << "module " << i;
      ASSERT_EQ(X.linres[1][at(i - 1)], betti(i, i + D)) << "module " << i;
    }
  });
}

// The vectors of all levels, as components.
using vectors_by_level = std::vector<std::vector<plain_vector>>;

level_report collection(vectors_by_level& levels) {
  return [&levels](int, const form_vectors& vectors) {
    levels.emplace_back();
    for (int i = 0; i < vectors.count(); ++i) levels.back().push_back(vectors.components(i));
    return true;
  };
}

vectors_by_level levels_of_I_X(const scheme& X) {
  vectors_by_level levels;
  const silence quiet;
  strand_of_generators(vectors_of(plain_generators(X).vectors, 1), collection(levels));
  return levels;
}

// With the generators, on which the relations say nothing, left out.
vectors_by_level levels_of_w_R(const scheme& X) {
  vectors_by_level levels;
  const int rank = plain_no_of_generators(X);
  const silence quiet;
  strand_of_relations(vectors_of(plain_relations(X, rank), rank), collection(levels));
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
  const raised_dim projective;
  std::vector<plain_vector> products;
  for (const plain_vector& v : vectors) {
    if (is_zero(v)) continue;
    for (int x = 0; x < dim; ++x) {
      products.push_back(v);
      for (polynomial& f : products.back()) f *= variable(x);
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

TEST(LinearStrandProperty, VectorsOfTheIdealAreABasisOfTheLinearSyzygies) {
  for_each_set([](const std::vector<coordinates>& points) {
    // The largest take most of the time.
    if (dim == 5 && points.size() > 20) return;
    expect_syzygies(levels_of_I_X(prepared(points)));
  });
}

TEST(LinearStrandProperty, VectorsOfTheCanonicalModuleAreABasisOfTheLinearSyzygies) {
  for_each_set([](const std::vector<coordinates>& points) {
    const vectors_by_level levels = levels_of_w_R(prepared(points));
    for (const plain_vector& v : levels[0]) ASSERT_TRUE(std::all_of(v.begin(), v.end(), is_linear));
    expect_syzygies(levels);
  });
}

}  // namespace
}  // namespace zep
