// SPDX-License-Identifier: GPL-3.0-or-later

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

// Compares levels with those of a strand, one after the other. `first` is the level of its first.
class comparison {
 public:
  comparison(const plain_strand& strand, int first) : strand_(strand), first_(first) {}

  // False when something is wrong.
  bool visit(int level, const form_vectors& found) {
    const int index = level - first_;
    EXPECT_EQ(index, visited_);
    EXPECT_LT(index, static_cast<int>(strand_.levels.size()));
    if (::testing::Test::HasFailure()) return false;
    ++visited_;
    expect_level(found, strand_.levels[index]);
    return !::testing::Test::HasFailure();
  }

  level_visitor visitor() {
    return [this](int level, const form_vectors& found) { return visit(level, found); };
  }

  strand_watcher watcher() {
    return {[](int, int) {}, visitor()};
  }

  void expect_all_visited() const { ASSERT_EQ(visited_, static_cast<int>(strand_.levels.size())); }

 private:
  const plain_strand& strand_;
  int first_;
  int visited_ = 0;
};

void expect_levels_of_I_X(const ideal& min_Ix, const plain_strand& strand) {
  comparison levels(strand, 0);
  strand_of_generators(vectors_of(plain_generators(min_Ix).vectors, 1), nobody(), levels.watcher());
  levels.expect_all_visited();
}

void expect_told(const told& reporter, const plain_strand& strand) {
  ASSERT_EQ(reporter.out, strand.marks());
  ASSERT_EQ(reporter.err, strand.progress);
}

// Follows a strand with follow(reporter, visitor), which returns the numbers.
template <class Follow>
void expect_followed(const plain_strand& strand, int first, Follow follow) {
  comparison levels(strand, first);
  told reporter;
  ASSERT_EQ(follow(reporter, levels.visitor()), strand.numbers);
  levels.expect_all_visited();
  expect_told(reporter, strand);
}

level_action action(const level_visitor& visit) {
  return [visit](int level, const form_vectors& vectors) { visit(level, vectors); };
}

void expect_linid(const strand_starts& start, const plain_strand& strand) {
  expect_followed(strand, 0, [&](reporter& to, const level_visitor& visit) {
    return linid(start.min_Ix, start.X, start.A, to, action(visit));
  });
  expect_followed(strand, 0, [&](reporter& to, const level_visitor& visit) {
    return linid_by_pairs(start.min_Ix, start.X.H.alpha, to, action(visit));
  });
  told without_vectors;
  ASSERT_EQ(linid(start.min_Ix, start.X, start.A, without_vectors, nullptr), strand.numbers);
  expect_told(without_vectors, strand);
}

TEST(LinearStrandProperty, OfTheIdealIsComputedAndToldAsThePlainStrand) {
  kinds seen;
  for_each_special_or_random_set([&](const std::vector<coordinates>& points) {
    const strand_starts start(points);
    const plain_strand strand = plain_strand_of_I_X(start.min_Ix, start.X.H.alpha);
    expect_levels_of_I_X(start.min_Ix, strand);
    expect_linid(start, strand);
    seen.add(strand);
  });
  EXPECT_GT(std::min(seen.long_ones, seen.marked), 50);
  EXPECT_GT(std::min(seen.with_zero_vectors, seen.ending_in_zeros), 20);
}

void expect_levels_of_w_R(const presentation& w_R, const plain_strand& strand) {
  const int rank = plain_no_of_generators(w_R);
  comparison levels(strand, 1);
  strand_of_relations(vectors_of(plain_relations(w_R, rank), rank), nobody(), levels.watcher());
  levels.expect_all_visited();
}

void expect_linom(const strand_starts& start, const plain_strand& strand) {
  expect_followed(strand, 1, [&](reporter& to, const level_visitor& visit) {
    return linom(start.w_R, start.X, start.A, to, visit);
  });
  expect_followed(strand, 1, [&](reporter& to, const level_visitor& visit) {
    return linom_by_pairs(start.w_R, to, visit);
  });
  told without_vectors;
  ASSERT_EQ(linom(start.w_R, start.X, start.A, without_vectors, nullptr), strand.numbers);
  expect_told(without_vectors, strand);
}

TEST(LinearStrandProperty, OfTheCanonicalModuleIsComputedAndToldAsThePlainStrand) {
  kinds seen;
  for_each_special_or_random_set([&](const std::vector<coordinates>& points) {
    const strand_starts start(points);
    const plain_strand strand = plain_strand_of_w_R(start.w_R);
    expect_levels_of_w_R(start.w_R, strand);
    expect_linom(start, strand);
    seen.add(strand);
  });
  EXPECT_GT(std::min(seen.long_ones, seen.marked), 50);
}

TEST(LinearStrandProperty, OfTheCanonicalModuleEndsWhereTheVisitorWantsIt) {
  for_each_special_or_random_set([](const std::vector<coordinates>& points) {
    const strand_starts start(points);
    const plain_strand strand = plain_strand_of_w_R(start.w_R, plain_extent::linear_relations);
    comparison levels(strand, 1);
    told reporter;
    const auto visit = [&](int level, const form_vectors& vectors) {
      levels.visit(level, vectors);
      return false;
    };
    ASSERT_EQ(linom(start.w_R, start.X, start.A, reporter, visit), strand.numbers);
    levels.expect_all_visited();
    ASSERT_EQ(reporter.out, "");
    ASSERT_EQ(reporter.err, strand.progress);
  });
}

// What a set that remembers makes of them: the numbers and their marks.
TEST(LinearStrandProperty, NumbersOfASetCountWhenTheyAreMeantTo) {
  for_each_random_set(
      {.seed = 89, .rounds = 1, .most_points_of_P5 = 25},
      [](const std::vector<coordinates>& points) {
        scheme X = make_set(points);
        const plain_strand I_X = plain_strand_of_I_X(X.min_Ix(), X.bu_mo().H.alpha);
        const plain_strand w_R = plain_strand_of_w_R(X.omega());
        const plain_strand start_of_w_R =
            plain_strand_of_w_R(X.omega(), plain_extent::linear_relations);
        const strand_numbers& strands = X.known().strands;
        X.linid([](int, const form_vectors&) {}, scheme::numbers::stay);
        ASSERT_EQ(strands.linres[0], I_X.numbers);
        ASSERT_FALSE(strands.linid);
        X.linid([](int, const form_vectors&) {}, scheme::numbers::count);
        ASSERT_EQ(strands.linres[0], I_X.numbers);
        ASSERT_TRUE(strands.linid);
        X.linom([](int, const form_vectors&) { return false; }, scheme::numbers::stay);
        ASSERT_EQ(strands.linres[1], start_of_w_R.numbers);
        ASSERT_FALSE(strands.linom);
        X.linom([](int, const form_vectors&) { return true; }, scheme::numbers::count);
        ASSERT_EQ(strands.linres[1], w_R.numbers);
        ASSERT_TRUE(strands.linom);
      });
}

TEST(LinearStrandProperty, MarksAreTheSameForWhoeverListens) {
  int marked = 0;
  for_each_random_set({.seed = 83, .rounds = 2, .most_points_of_P5 = 25},
                      [&](const std::vector<coordinates>& points) {
                        const strand_starts start(points);
                        const int alpha = start.X.H.alpha;
                        const plain_strand I_X = plain_strand_of_I_X(start.min_Ix, alpha);
                        const plain_strand w_R = plain_strand_of_w_R(start.w_R);
                        told inattentive(false);
                        linid(start.min_Ix, start.X, start.A, inattentive, nullptr);
                        linom(start.w_R, start.X, start.A, inattentive, nullptr);
                        ASSERT_EQ(inattentive.out, I_X.marks() + w_R.marks());
                        marked += inattentive.out.empty() ? 0 : 1;
                      });
  EXPECT_GT(marked, 10);
}

}  // namespace
}  // namespace zep::tests
