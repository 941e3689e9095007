#include <gtest/gtest.h>

#include "points/strand/linear_strand.h"
#include "points/strand/linid.h"
#include "points/strand/linom.h"
#include "tests/points/computing.h"
#include "tests/points/plain_strand.h"
#include "tests/points/strand_sets.h"

namespace zep::tests {
namespace {

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
    ASSERT_EQ(found.position(i), expected.positions[i]);
    ASSERT_EQ(texts(found.components(i)), texts(expected.vectors[i]));
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
    expect_level(found, strand.levels[index]);
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
    text += plain_matrix(strand.levels[k], k + 1, "I_X");
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
    text += plain_matrix(strand.levels[k], k + 1, "w_R");
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
  for_each_random_set({.seed = 83, .rounds = 2, .most_points_of_P5 = 25},
                      [&](const std::vector<coordinates>& points) {
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

}  // namespace
}  // namespace zep::tests
