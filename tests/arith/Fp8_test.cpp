// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/Fp8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>

#include "arith/Fp.h"
#include "tests/arith/division_fault.h"
#include "tests/captured.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

bool is_empty(const Fp8::table& table) {
  const std::uint8_t* first = &table[0][0];
  return std::all_of(first, first + sizeof table, [](std::uint8_t entry) { return entry == 0; });
}

// Taken before any test changes them.
const int prime_at_start = Fp8::prime;
const bool tables_empty_at_start =
    is_empty(Fp8::add) && is_empty(Fp8::sub) && is_empty(Fp8::mul) && is_empty(Fp8::div);

bool is_prime(int p) {
  for (int d = 2; d < p; ++d) {
    if (p % d == 0) return false;
  }
  return p > 1;
}

int plain_inverse(int b, int p) {
  for (int x = 1; x < p; ++x) {
    if (b * x % p == 1) return x;
  }
  return 0;
}

// Entries that differ from the plain computation; those beyond the p x p corners are 0.
int wrong_entries(int p) {
  int wrong = 0;
  for (int a = 0; a < 256; ++a) {
    for (int b = a < p ? p : 0; b < 256; ++b) {
      wrong += Fp8::add[a][b] != 0;
      wrong += Fp8::sub[a][b] != 0;
      wrong += Fp8::mul[a][b] != 0;
      wrong += Fp8::div[a][b] != 0;
    }
  }
  for (int b = 0; b < p; ++b) {
    const int inverse = plain_inverse(b, p);
    for (int a = 0; a < p; ++a) {
      wrong += Fp8::add[a][b] != (a + b) % p;
      wrong += Fp8::sub[a][b] != (a + (p - b)) % p;
      wrong += Fp8::mul[a][b] != a * b % p;
      wrong += Fp8::div[a][b] != a * inverse % p;
    }
  }
  return wrong;
}

Fp8 read(const std::string& text) {
  std::istringstream in(text);
  Fp8 x(77);
  in >> x;
  return x;
}

TEST(Fp8, StartsWithThePrime101AndEmptyTables) {
  EXPECT_EQ(prime_at_start, 101);
  EXPECT_TRUE(tables_empty_at_start);
}

TEST(Fp8, TablesHoldTheFieldOfEveryPrime) {
  for (int p = 2; p <= 251; ++p) {
    if (!is_prime(p)) continue;
    const ring_in_force ring(p);
    EXPECT_EQ(wrong_entries(p), 0) << "p = " << p;
  }
}

TEST(Fp8, DivisorsWithoutInverseGiveZeroInEveryCompositeCharacteristic) {
  for (int p = 4; p <= 250; ++p) {
    if (is_prime(p)) continue;
    const ring_in_force ring(p);
    EXPECT_EQ(wrong_entries(p), 0) << "p = " << p;
  }
}

TEST(Fp8, CharacteristicFourHasTheInversesOneAndThreeOnly) {
  const ring_in_force ring(4);
  for (int a = 0; a < 4; ++a) {
    EXPECT_EQ((Fp8(a) / Fp8(2)).value(), 0);
    EXPECT_EQ((Fp8(a) / Fp8(3)).value(), 3 * a % 4);
  }
  Fp8 x(2);
  x.invert();
  EXPECT_EQ(x.value(), 0);
}

TEST(Fp8, OperatorsAndCompoundAssignmentsLookUpTheTables) {
  for (const int p : {2, 3, 4, 101, 251}) {
    const ring_in_force ring(p);
    int wrong = 0;
    for (int a = 0; a < p; ++a) {
      for (int b = 0; b < p; ++b) {
        Fp8 x(a);
        wrong += (x + Fp8(b)).value() != Fp8::add[a][b];
        wrong += (x - Fp8(b)).value() != Fp8::sub[a][b];
        wrong += (x * Fp8(b)).value() != Fp8::mul[a][b];
        wrong += (x / Fp8(b)).value() != Fp8::div[a][b];
        wrong += ((x = a) += Fp8(b)).value() != Fp8::add[a][b];
        wrong += ((x = a) -= Fp8(b)).value() != Fp8::sub[a][b];
        wrong += ((x = a) *= Fp8(b)).value() != Fp8::mul[a][b];
        wrong += ((x = a) /= Fp8(b)).value() != Fp8::div[a][b];
      }
      wrong += (-Fp8(a)).value() != (p - a) % p;
    }
    EXPECT_EQ(wrong, 0) << "p = " << p;
  }
}

TEST(Fp8, ComputesModulo101) {
  const ring_in_force ring(101);
  EXPECT_EQ(Fp8(100) + Fp8(1), 0);
  EXPECT_EQ(Fp8(0) - Fp8(1), 100);
  EXPECT_EQ(Fp8(50) * Fp8(2), 100);
  EXPECT_EQ(Fp8(1) / Fp8(2), 51);
  EXPECT_EQ(-Fp8(0), 0);
}

TEST(Fp8, CompoundAssignmentsChangeAndReturnTheLeftOperand) {
  const ring_in_force ring(101);
  Fp8 x(100);
  EXPECT_EQ(&(x += Fp8(2)), &x);
  EXPECT_EQ(x, 1);
  EXPECT_EQ(&(x -= Fp8(3)), &x);
  EXPECT_EQ(x, 99);
  EXPECT_EQ(&(x *= Fp8(2)), &x);
  EXPECT_EQ(x, 97);
  EXPECT_EQ(&(x /= Fp8(97)), &x);
  EXPECT_EQ(x, 1);
}

TEST(Fp8, UnaryPlusIsItsOperandItself) {
  const Fp8 x(5);
  const Fp8& same = +x;
  EXPECT_EQ(&same, &x);
}

TEST(Fp8, DividesByACopyOfTheDivisor) {
  const ring_in_force ring(101);
  Fp8 x(7);
  const Fp8& same = x;
  x /= same;
  EXPECT_EQ(x, 1);
}

TEST(Fp8, DivisionByZeroIsZeroWithoutAWord) {
  for (const int p : {2, 3, 4, 101, 251}) {
    const ring_in_force ring(p);
    const captured output(std::cout);
    for (int a = 0; a < p; ++a) {
      Fp8 x(a);
      EXPECT_EQ(x / Fp8(0), 0);
      x /= Fp8(0);
      EXPECT_EQ(x, 0);
    }
    EXPECT_EQ(output.text(), "");
  }
}

TEST(Fp8, InvertTakesTheInverse) {
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    for (int a = 1; a < p; ++a) {
      Fp8 x(a);
      x.invert();
      ASSERT_EQ(x, plain_inverse(a, p)) << a << " mod " << p;
    }
  }
}

TEST(Fp8, InvertingZeroIsADivisionByZero) {
  const ring_in_force ring(101);
  expect_division_fault("Fp8", [] { Fp8(0).invert(); });
}

TEST(Fp8, ConstructionStoresTheLowByteUnreduced) {
  const ring_in_force ring(101);
  EXPECT_EQ(Fp8(300).value(), 44);
  EXPECT_EQ(Fp8(200).value(), 200);
  EXPECT_EQ(Fp8(-1).value(), 255);
}

TEST(Fp8, AssignmentStoresTheTruncatingRemainder) {
  const ring_in_force ring(101);
  Fp8 x(0);
  EXPECT_EQ((x = 300).value(), 98);
  EXPECT_EQ((x = 101).value(), 0);
  EXPECT_EQ((x = -1).value(), 255);
  EXPECT_EQ((x = -102).value(), 255);
}

TEST(Fp8, ComparesWithIntsUnreduced) {
  const ring_in_force ring(101);
  EXPECT_TRUE(Fp8(5) == 5);
  EXPECT_TRUE(Fp8(5) != 106);
  EXPECT_TRUE(Fp8(255) != -1);
  for (int a = 0; a < 101; ++a) EXPECT_TRUE(Fp8(a) != 101);
}

TEST(Fp8, ComparesBytes) {
  const ring_in_force ring(101);
  EXPECT_TRUE(Fp8(5) == Fp8(5));
  EXPECT_TRUE(Fp8(5) == Fp8(261));
  EXPECT_TRUE(Fp8(5) != Fp8(106));
}

TEST(Fp8, PrintsTheSymmetricRepresentative) {
  const ring_in_force ring(101);
  EXPECT_EQ(text_of(Fp8(0)), "0");
  EXPECT_EQ(text_of(Fp8(50)), "50");
  EXPECT_EQ(text_of(Fp8(51)), "-50");
  EXPECT_EQ(text_of(Fp8(100)), "-1");
}

TEST(Fp8, SignAndAbsSplitAtHalfThePrime) {
  const ring_in_force ring(101);
  EXPECT_EQ(sign(Fp8(0)), 0);
  EXPECT_EQ(sign(Fp8(50)), 1);
  EXPECT_EQ(sign(Fp8(51)), -1);
  EXPECT_EQ(abs(Fp8(100)), 1);
  EXPECT_EQ(abs(Fp8(50)), 50);
}

TEST(Fp8, OneIsPositiveModuloTwo) {
  const ring_in_force ring(2);
  EXPECT_EQ(text_of(Fp8(1)), "1");
  EXPECT_EQ(sign(Fp8(1)), 1);
}

TEST(Fp8, SignAbsAndLenFollowThePrintedForm) {
  for (const int p : {2, 3, 4, 101, 251}) {
    const ring_in_force ring(p);
    for (int a = 0; a < p; ++a) {
      const std::string printed = text_of(Fp8(a));
      const int representative = std::stoi(printed);
      ASSERT_EQ((representative + p) % p, a);
      ASSERT_LE(2 * representative, p);
      ASSERT_GT(2 * representative, -p);
      ASSERT_EQ(sign(Fp8(a)), (representative > 0) - (representative < 0)) << a << " mod " << p;
      ASSERT_EQ(abs(Fp8(a)), representative < 0 ? -representative : representative);
      ASSERT_EQ(len(Fp8(a)), static_cast<int>(printed.size())) << a << " mod " << p;
    }
  }
}

TEST(Fp8, HasThePrimeOfFp) {
  for (const int p : {7, 101}) {
    const ring_in_force ring(p);
    EXPECT_EQ(Fp8::prime, p);
    EXPECT_EQ(Fp::prime, p);
  }
}

TEST(Fp8, ComputesWithTheNewPrimeInAnotherRing) {
  const ring_in_force before(251);
  const ring_in_force ring(7);
  EXPECT_EQ(Fp8(6) + Fp8(1), 0);
  EXPECT_EQ(Fp8(3) * Fp8(5), 1);
}

TEST(Fp8, ReciprocalIsTheLargestWordOverThePrimeRoundedDown) {
  for (int p = 2; p <= largest_prime; ++p) {
    const ring_in_force ring(p);
    const std::uint64_t product = std::uint64_t{Fp8::reciprocal} * static_cast<std::uint64_t>(p);
    EXPECT_LE(product, 0xFFFFFFFFU) << p;
    EXPECT_GT(product + p, 0xFFFFFFFFU) << p;
  }
}

TEST(Fp8, ReadsRationalsModuloThePrime) {
  const ring_in_force ring(101);
  EXPECT_EQ(read("3/2"), 52);
  EXPECT_EQ(read("-2"), 99);
  EXPECT_EQ(read("-3/2"), 49);
  EXPECT_EQ(read("202"), 0);
}

TEST(Fp8, ReadsWhatItPrints) {
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    for (int a = 0; a < p; ++a) ASSERT_EQ(read(text_of(Fp8(a))), a) << "p = " << p;
  }
}

TEST(Fp8, ReadsOneNumberAfterAnother) {
  const ring_in_force ring(101);
  std::istringstream in("1 -1\n3/2");
  Fp8 x;
  Fp8 y;
  Fp8 z;
  EXPECT_TRUE(in >> x >> y >> z);
  EXPECT_EQ(x, 1);
  EXPECT_EQ(y, 100);
  EXPECT_EQ(z, 52);
}

TEST(Fp8, IsZeroWhenNothingCouldBeRead) {
  const ring_in_force ring(101);
  EXPECT_EQ(read("abc"), 0);
  EXPECT_EQ(read(""), 0);
}

}  // namespace
}  // namespace zep::tests
