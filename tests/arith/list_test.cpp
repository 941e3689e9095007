// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/list.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "arith/candidate.h"
#include "tests/arith/power_product.h"
#include "tests/draw.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

monom X() { return power_product({1, 0, 0}); }
monom Y() { return power_product({0, 1, 0}); }
monom Z() { return power_product({0, 0, 1}); }

// A candidate that `n` tells from other candidates of the same monomial.
mmm candidate(const monom& t, int n) { return {.t = t, .n = n, .k = 0, .ins = 1}; }

template <class T>
T taken(list<T>& items) {
  T out;
  items.min_del(out);
  return out;
}

template <class T>
list<T> list_of(const std::vector<T>& items) {
  list<T> result;
  for (const T& item : items) result.add(item);
  return result;
}

template <class T>
std::string contents(const list<T>& items) {
  std::string text;
  for (const T& item : items) text += text_of(item) + ";";
  return text;
}

TEST(List, IsEmptyAtFirst) {
  const list<monom> items;
  EXPECT_TRUE(items.empty());
  EXPECT_EQ(items.no_of_items(), 0);
}

TEST(List, AddAppendsAndKeepsDuplicates) {
  const ring_in_force ring;
  list<monom> items;
  items.add(X());
  EXPECT_EQ(items.first(), X());
  EXPECT_EQ(items.last(), X());
  const monom y = Y();
  items.add(y);
  items.add(X());
  EXPECT_EQ(items.no_of_items(), 3);
  EXPECT_EQ(contents(items), "X;Y;X;");
}

TEST(List, AddTakesACopy) {
  const ring_in_force ring;
  monom m = X();
  list<monom> items;
  items.add(m);
  m.set_exp(0, 5);
  EXPECT_EQ(items.first(), X());
}

TEST(List, MinDelOfOneElementLeavesAnEmptyList) {
  const ring_in_force ring;
  list<monom> items = list_of<monom>({X()});
  EXPECT_EQ(taken(items), X());
  EXPECT_TRUE(items.empty());
  EXPECT_EQ(items.no_of_items(), 0);
  items.add(Y());
  EXPECT_EQ(items.first(), Y());
  EXPECT_EQ(items.last(), Y());
}

TEST(List, MinDelTakesTheHeadWhenItAloneIsSmallest) {
  const ring_in_force ring;
  list<monom> items = list_of<monom>({Z(), X(), Y()});
  EXPECT_EQ(taken(items), Z());
  EXPECT_EQ(contents(items), "X;Y;");
  EXPECT_EQ(items.first(), X());
}

TEST(List, MinDelTakesTheSmallestInTheOrderInForce) {
  const ring_in_force degrevlex;
  const monom shapes[] = {power_product({1, 0, 1}), power_product({0, 2, 0})};
  list<monom> items = list_of<monom>({shapes[1], shapes[0]});
  EXPECT_EQ(text_of(taken(items)), "XZ");
  const ring_in_force deglex(101, 3, term_order::deglex);
  items = list_of<monom>({shapes[0], shapes[1]});
  EXPECT_EQ(text_of(taken(items)), "Y^2");
}

TEST(List, MinDelOfTheLastElementLetsTheNextOneAppend) {
  const ring_in_force ring;
  list<monom> items = list_of<monom>({X(), Y(), Z()});
  EXPECT_EQ(taken(items), Z());
  EXPECT_EQ(items.last(), Y());
  items.add(Z());
  EXPECT_EQ(contents(items), "X;Y;Z;");
}

TEST(List, MinDelTakesATiedHeadLast) {
  const ring_in_force ring;
  list<monom> items = list_of<monom>({X(), Y(), X()});
  EXPECT_EQ(taken(items), Y());
  EXPECT_EQ(taken(items), X());
  EXPECT_EQ(taken(items), X());
  EXPECT_TRUE(items.empty());

  list<mmm> candidates = list_of<mmm>({candidate(X(), 0), candidate(Y(), 1), candidate(X(), 2)});
  EXPECT_EQ(taken(candidates).n, 1);
  EXPECT_EQ(taken(candidates).n, 2);
  EXPECT_EQ(taken(candidates).n, 0);
}

TEST(List, MinDelTakesTheEarliestTiedElementBehindTheHead) {
  const ring_in_force ring;
  list<mmm> items =
      list_of<mmm>({candidate(Z(), 0), candidate(Z(), 1), candidate(X(), 2), candidate(Z(), 3)});
  // Each removal may make another element the head.
  for (const int n : {1, 3, 0, 2}) EXPECT_EQ(taken(items).n, n);
}

TEST(List, MinDelTakesPolynomialsByTheirLeadingMonomial) {
  const ring_in_force ring;
  const polynomial head = sum_of({{1, Y()}, {1, Z()}});
  const polynomial tied = sum_of({{5, Y()}});
  const polynomial large = sum_of({{1, X()}});
  list<polynomial> items = list_of<polynomial>({head, large, tied});
  EXPECT_EQ(taken(items), tied);
  EXPECT_EQ(taken(items), head);
  EXPECT_EQ(taken(items), large);
}

// The position of the element to be taken: the smallest one, the earliest of several, but the head
// only when no other is as small.
std::size_t place_of_smallest(const std::vector<mmm>& items) {
  std::size_t best = items.size() - 1;
  for (std::size_t i = items.size(); i-- > 0;) {
    const bool as_small = !(items[best] < items[i]);
    const bool smaller = items[i] < items[best];
    if (i > 0 ? as_small : smaller) best = i;
  }
  return best;
}

TEST(List, MinDelAgreesWithASearchThroughAVector) {
  std::mt19937 random(7);
  const ring_in_force ring;
  for (int round = 0; round < 100; ++round) {
    list<mmm> items;
    std::vector<mmm> model;
    for (int step = 0; step < 40; ++step) {
      if (below(random, 3) > 0 || model.empty()) {
        const mmm m = candidate(power_product({below(random, 2), below(random, 2)}), step);
        items.add(m);
        model.push_back(m);
      } else {
        const std::size_t place = place_of_smallest(model);
        ASSERT_EQ(taken(items).n, model[place].n);
        model.erase(model.begin() + static_cast<std::ptrdiff_t>(place));
      }
      ASSERT_EQ(items.no_of_items(), static_cast<int>(model.size()));
    }
  }
}

}  // namespace
}  // namespace zep::tests
