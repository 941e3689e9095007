// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/ring_in_force.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "arith/Fp.h"
#include "arith/Fp8.h"
#include "arith/ordering.h"

namespace zep::tests {
namespace {

using bytes = std::vector<std::uint8_t>;
using guard = arith::ring_in_force;

bytes all_tables() {
  bytes result;
  for (const Fp8::table* const entries : {&Fp8::add, &Fp8::sub, &Fp8::mul, &Fp8::div}) {
    const std::uint8_t* const first = &(*entries)[0][0];
    result.insert(result.end(), first, first + sizeof *entries);
  }
  return result;
}

// All that is read of the ring in force.
struct in_force {
  ring R = current_ring();
  int p = ring_data::p;
  int p_of_Fp = Fp::prime;
  int p_of_Fp8 = Fp8::prime;
  std::uint32_t reciprocal = Fp8::reciprocal;
  int affine = dim;
  int projective = proj;
  std::string names = {ring_data::names.begin(), ring_data::names.begin() + proj};
  monom_comparison lt = monom_ordering_lt;
  monom_comparison le = monom_ordering_le;
  monom_comparison proj_lt = proj_monom_ordering_lt;
  monom_comparison proj_le = proj_monom_ordering_le;
  bytes tables = all_tables();

  bool operator==(const in_force&) const = default;
};

ring plane() { return {.p = 7, .n = 2, .names = "uvw", .order = term_order::deglex}; }

ring large_space() { return {.p = 251, .n = max_variables - 1, .order = term_order::degrevlex}; }

TEST(RingInForce, EnforcePutsEveryPartOfTheRingInForce) {
  const guard before{ring()};
  enforce(plane());
  EXPECT_EQ(current_ring(), plane());
  EXPECT_EQ(ring_data::p, 7);
  EXPECT_EQ(Fp::prime, 7);
  EXPECT_EQ(Fp8::prime, 7);
  EXPECT_EQ(Fp8::reciprocal, 0xFFFFFFFFU / 7);
  EXPECT_EQ(dim, 2);
  EXPECT_EQ(proj, 3);
  EXPECT_EQ(in_force().names, "uvw");
  EXPECT_EQ(monom_ordering_lt, deglex_lt);
  EXPECT_EQ(monom_ordering_le, deglex_le);
  EXPECT_EQ(proj_monom_ordering_lt, proj_deglex_lt);
  EXPECT_EQ(proj_monom_ordering_le, proj_deglex_le);
  EXPECT_EQ(Fp8(3) * Fp8(5), 1);
  EXPECT_EQ(Fp8(6) + Fp8(1), 0);
}

TEST(RingInForce, OfTheDefaultRingIsDegrevlexInThreeVariablesOverF101) {
  const guard before(plane());
  const guard R{ring()};
  EXPECT_EQ(Fp8::prime, 101);
  EXPECT_EQ(dim, 3);
  EXPECT_EQ(in_force().names, "XYZT");
  EXPECT_EQ(monom_ordering_lt, degrevlex_lt);
  EXPECT_EQ(proj_monom_ordering_le, proj_degrevlex_le);
  EXPECT_EQ(Fp8(50) * Fp8(2), 100);
}

TEST(RingInForce, TakesACopyOfTheRing) {
  ring R = plane();
  const guard copied(R);
  R.p = 5;
  R.names = "abc";
  EXPECT_EQ(current_ring(), plane());
  EXPECT_EQ(in_force().names, "uvw");
}

TEST(RingInForce, TakesTheNamesThatTheRingUsesAndRemembersAll) {
  const guard R(ring{.n = 2, .names = "pqrstu"});
  EXPECT_EQ(in_force().names, "pqr");
  EXPECT_EQ(current_ring().names, "pqrstu");
}

TEST(RingInForce, GuardRestoresAllOfTheRingBefore) {
  for (const ring& before : {ring(), plane(), large_space()}) {
    const guard outer(before);
    const in_force expected;
    for (const ring& other : {ring(), plane(), large_space()}) {
      {
        const guard inner(other);
        EXPECT_EQ(current_ring(), other);
      }
      EXPECT_EQ(in_force(), expected);
    }
  }
}

TEST(RingInForce, GuardsNest) {
  const in_force none;
  {
    const guard outer(plane());
    const in_force in_the_plane;
    {
      const guard middle(large_space());
      const in_force in_the_large_space;
      {
        const guard inner(plane());
        EXPECT_EQ(in_force(), in_the_plane);
      }
      EXPECT_EQ(in_force(), in_the_large_space);
    }
    EXPECT_EQ(in_force(), in_the_plane);
  }
  EXPECT_EQ(in_force().R, none.R);
}

TEST(RingInForce, GuardRestoresWhenAnExceptionPasses) {
  const guard outer(plane());
  const in_force expected;
  const auto interrupted = [] {
    const guard inner(large_space());
    throw std::runtime_error("interrupted");
  };
  EXPECT_THROW(interrupted(), std::runtime_error);
  EXPECT_EQ(in_force(), expected);
}

TEST(RingInForce, GuardRestoresTheRingBeforeItWhateverWasEnforcedMeanwhile) {
  const guard outer(plane());
  const in_force expected;
  {
    const guard inner{ring()};
    enforce(large_space());
    enforce(ring{.p = 3, .n = 4});
  }
  EXPECT_EQ(in_force(), expected);
}

TEST(RingInForce, RingsThatTakeTurnsAreTheSameEveryTime) {
  const guard before{ring()};
  enforce(plane());
  const in_force in_the_plane;
  enforce(large_space());
  const in_force in_the_large_space;
  for (int turn = 0; turn < 5; ++turn) {
    enforce(plane());
    EXPECT_EQ(in_force(), in_the_plane);
    EXPECT_EQ(Fp8(3) * Fp8(5), 1);
    enforce(large_space());
    EXPECT_EQ(in_force(), in_the_large_space);
    EXPECT_EQ(Fp8(125) * Fp8(2), 250);
  }
}

TEST(RingInForce, MonomialsHaveTheirMeaningAgainWhenTheirRingIsInForceAgain) {
  const guard before(plane());
  const monom u = variable(0);
  const monom v = variable(1);
  const monom w = projective_variable(2);
  {
    const guard other{ring{.n = 5}};
    EXPECT_EQ(variable(0).dim(), 5);
  }
  EXPECT_EQ(u, variable(0));
  EXPECT_EQ(u.dim(), dim);
  EXPECT_EQ(w.dim(), proj);
  EXPECT_TRUE(v < u);
}

// Number of entries that are not 0 with a row or column from p on, and of quotients by 0.
int entries_beyond(int p) {
  int found = 0;
  for (const Fp8::table* const entries : {&Fp8::add, &Fp8::sub, &Fp8::mul, &Fp8::div}) {
    for (int a = 0; a < 256; ++a) {
      for (int b = 0; b < 256; ++b) {
        const bool is_quotient_by_zero = entries == &Fp8::div && b == 0;
        if (a < p && b < p && !is_quotient_by_zero) continue;
        found += (*entries)[a][b] != 0 ? 1 : 0;
      }
    }
  }
  return found;
}

TEST(RingInForce, TablesHoldNothingOfALargerCharacteristic) {
  for (const int p : {2, 3, 4, 101, 250}) {
    const guard larger(ring{.p = largest_prime});
    const guard R(ring{.p = p});
    EXPECT_EQ(entries_beyond(p), 0) << "p = " << p;
  }
}

TEST(RingInForce, TablesDoNotDependOnTheRingsBefore) {
  const guard before{ring()};
  const std::vector<int> characteristics = {2, 3, 4, 101, 250, 251};
  std::map<int, bytes> tables;
  for (const int p : characteristics) {
    enforce(ring{.p = p});
    tables[p] = all_tables();
  }
  for (const int first : characteristics) {
    for (const int second : characteristics) {
      for (const int p : characteristics) {
        enforce(ring{.p = first});
        enforce(ring{.p = second});
        enforce(ring{.p = p});
        ASSERT_TRUE(all_tables() == tables[p]) << p << " after " << first << ", " << second;
      }
    }
  }
}

TEST(RingInForce, TablesStayWhereOnlyOtherPartsOfTheRingChange) {
  const guard before(ring{.p = 11});
  const bytes tables = all_tables();
  const guard other(ring{.p = 11, .n = 7, .order = term_order::deglex});
  EXPECT_TRUE(all_tables() == tables);
}

}  // namespace
}  // namespace zep::tests
