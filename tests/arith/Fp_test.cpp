// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/Fp.h"

#include <gtest/gtest.h>

#include <climits>
#include <exception>
#include <iomanip>
#include <numeric>
#include <random>
#include <sstream>
#include <string>
#include <tuple>
#include <type_traits>

#include "tests/arith/division_fault.h"
#include "tests/draw.h"
#include "tests/ring_in_force.h"
#include "tests/text_of.h"

namespace zep::tests {
namespace {

// Taken before any test changes it.
const int prime_at_start = Fp::prime;

Fp read(const std::string& text) {
  std::istringstream in(text);
  Fp x(77);
  in >> x;
  return x;
}

int plain_inverse(int a, int p) {
  for (int x = 1; x < p; ++x) {
    if (a * x % p == 1) return x;
  }
  return 0;
}

TEST(Fp, StartsWithThePrime101) { EXPECT_EQ(prime_at_start, 101); }

TEST(Fp, ConstructionStoresTheIntUnreduced) {
  const ring_in_force ring(101);
  EXPECT_EQ(Fp(205).value(), 205);
  EXPECT_EQ(Fp(-3).value(), -3);
}

TEST(Fp, AssignmentAddsTheModulusOnceBeforeItReduces) {
  const ring_in_force ring(101);
  Fp x(0);
  EXPECT_EQ((x = 5).value(), 5);
  EXPECT_EQ((x = 250).value(), 48);
  EXPECT_EQ((x = -1).value(), 100);
  EXPECT_EQ((x = -100).value(), 1);
  EXPECT_EQ((x = -101).value(), 0);
  EXPECT_EQ((x = -102).value(), -1);
  EXPECT_EQ((x = INT_MAX).value(), INT_MAX % 101);
  EXPECT_EQ((x = INT_MIN).value(), INT_MIN % 101);
}

TEST(Fp, ComparisonsDoNotReduce) {
  const ring_in_force ring(101);
  EXPECT_TRUE(Fp(7) == Fp(7));
  EXPECT_TRUE(Fp(7) == 7);
  EXPECT_TRUE(Fp(108) != Fp(7));
  EXPECT_TRUE(Fp(7) != 108);
}

TEST(Fp, OperatorsComputeModuloThePrime) {
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    int wrong = 0;
    for (int a = 0; a < p; ++a) {
      for (int b = 0; b < p; ++b) {
        wrong += (Fp(a) + Fp(b)).value() != (a + b) % p;
        wrong += (Fp(a) - Fp(b)).value() != (a - b + p) % p;
        wrong += (Fp(a) * Fp(b)).value() != a * b % p;
        if (b != 0) wrong += (Fp(a) / Fp(b)).value() * b % p != a;
      }
    }
    EXPECT_EQ(wrong, 0) << "p = " << p;
  }
}

TEST(Fp, CompoundAssignmentsChangeAndReturnTheLeftOperand) {
  const ring_in_force ring(101);
  Fp x(70);
  EXPECT_EQ(&(x += Fp(50)), &x);
  EXPECT_EQ(x.value(), 19);
  EXPECT_EQ(&(x -= Fp(20)), &x);
  EXPECT_EQ(x.value(), 100);
  EXPECT_EQ(&(x *= Fp(50)), &x);
  EXPECT_EQ(x.value(), 51);
  EXPECT_EQ(&(x /= Fp(2)), &x);
  EXPECT_EQ(x.value(), 76);
}

TEST(Fp, ProductsAreExactForTheLargestPrime) {
  const ring_in_force ring(251);
  EXPECT_EQ((Fp(250) * Fp(250)).value(), 1);
  EXPECT_EQ((Fp(250) * Fp(249)).value(), 2);
  Fp x(123);
  x.invert();
  EXPECT_EQ((x * Fp(123)).value(), 1);
}

TEST(Fp, DivisionTakesACopyOfTheDivisor) {
  const ring_in_force ring(101);
  const Fp y(2);
  EXPECT_EQ((Fp(1) / y).value(), 51);
  EXPECT_EQ(y.value(), 2);
  Fp x(7);
  const Fp& same = x;
  x /= same;
  EXPECT_EQ(x.value(), 1);
}

TEST(Fp, UnaryPlusIsItsOperandItself) {
  const Fp x(205);
  const Fp& same = +x;
  EXPECT_EQ(&same, &x);
}

TEST(Fp, OperatorsTakeUnreducedValuesAsTheyAre) {
  const ring_in_force ring(101);
  const Fp negative_zero = -Fp(0);
  EXPECT_EQ((negative_zero + negative_zero).value(), 0);
  EXPECT_EQ((Fp(50) + Fp(-60)).value(), -10);
  EXPECT_EQ((negative_zero - Fp(1)).value(), 100);
  EXPECT_EQ((Fp(0) - negative_zero).value(), 0);
  EXPECT_EQ((Fp(1) - Fp(205)).value(), -2);
  EXPECT_EQ((Fp(-2) * Fp(60)).value(), -19);
  EXPECT_EQ((Fp(300) * Fp(3)).value(), 92);
  EXPECT_EQ((Fp(-2) / Fp(2)).value(), -1);
  EXPECT_EQ((-Fp(205)).value(), -104);
  EXPECT_EQ((-Fp(-3)).value(), 104);
}

TEST(Fp, InvertReducesTheElementFirst) {
  const ring_in_force ring(101);
  for (const int unreduced : {103, 204, -99, -200}) {
    Fp x(unreduced);
    x.invert();
    EXPECT_EQ(x.value(), 51) << unreduced;
  }
}

TEST(Fp, NegationSubtractsFromThePrime) {
  const ring_in_force ring(101);
  EXPECT_EQ((-Fp(1)).value(), 100);
  EXPECT_EQ((-Fp(100)).value(), 1);
}

TEST(Fp, NegativeOfZeroIsThePrimeAndNegative) {
  const ring_in_force ring(101);
  const Fp x = -Fp(0);
  EXPECT_EQ(x.value(), 101);
  EXPECT_TRUE(x != 0);
  EXPECT_TRUE(x != Fp(0));
  EXPECT_EQ(sign(x), -1);
  EXPECT_EQ(text_of(x), "0");
  EXPECT_EQ(len(x), 1);
}

TEST(Fp, InvertsOneTwoAndMinusOne) {
  const ring_in_force ring(101);
  for (const auto& [a, inverse] : {std::pair(1, 1), std::pair(2, 51), std::pair(100, 100)}) {
    Fp x(a);
    x.invert();
    EXPECT_EQ(x.value(), inverse);
  }
}

TEST(Fp, InvertFindsTheInverseOfEveryUnit) {
  for (const int p : {2, 3, 4, 6, 101, 250, 251}) {
    const ring_in_force ring(p);
    for (int a = 1; a < p; ++a) {
      ASSERT_EQ(Fp(a).is_unit(), std::gcd(a, p) == 1) << a << " mod " << p;
      if (!Fp(a).is_unit()) continue;
      Fp x(a);
      x.invert();
      ASSERT_EQ(x.value(), plain_inverse(a, p)) << a << " mod " << p;
    }
    EXPECT_FALSE(Fp(0).is_unit());
  }
}

TEST(Fp, InvertingZeroIsADivisionByZero) {
  const ring_in_force ring(101);
  expect_division_fault("Fp", [] { Fp(0).invert(); });
}

TEST(Fp, DividingByZeroIsADivisionByZero) {
  const ring_in_force ring(101);
  expect_division_fault("Fp", [] { EXPECT_EQ(Fp(1) / Fp(0), 0); });
  expect_division_fault("Fp", [] {
    Fp x(1);
    x /= Fp(0);
  });
}

TEST(Fp, DivisionByZeroIsNoError) {
  EXPECT_FALSE((std::is_base_of_v<std::exception, division_by_zero>));
}

TEST(Fp, InvertingADivisorOfZeroIsADivisionByZero) {
  const ring_in_force ring(4);
  expect_division_fault("Fp", [] { Fp(2).invert(); });
}

TEST(Fp, PrintsTheSymmetricRepresentative) {
  const ring_in_force ring(101);
  EXPECT_EQ(text_of(Fp(0)), "0");
  EXPECT_EQ(text_of(Fp(50)), "50");
  EXPECT_EQ(text_of(Fp(51)), "-50");
  EXPECT_EQ(text_of(Fp(100)), "-1");
  EXPECT_EQ(text_of(Fp(205)), "104");
  EXPECT_EQ(symmetric(Fp(51)), -50);
}

TEST(Fp, PrintsOneAsPositiveModuloTwo) {
  const ring_in_force ring(2);
  EXPECT_EQ(text_of(Fp(1)), "1");
  EXPECT_EQ(sign(Fp(1)), 1);
}

TEST(Fp, PrintsAsTheStreamPrintsInts) {
  const ring_in_force ring(101);
  std::ostringstream out;
  out << std::setw(5) << Fp(51) << std::showpos << Fp(7);
  EXPECT_EQ(out.str(), "  -50+7");
}

TEST(Fp, SignAndLenFollowThePrintedForm) {
  for (const int p : {2, 3, 4, 101, 251}) {
    const ring_in_force ring(p);
    for (int a = 0; a < p; ++a) {
      const int printed = std::stoi(text_of(Fp(a)));
      ASSERT_EQ((printed - a) % p, 0);
      ASSERT_EQ(sign(Fp(a)), (printed > 0) - (printed < 0)) << a << " mod " << p;
      ASSERT_EQ(len(Fp(a)), static_cast<int>(text_of(Fp(a)).size())) << a << " mod " << p;
    }
  }
}

TEST(Fp, SignLenAndPrintingTakeUnreducedValuesAsTheyAre) {
  const ring_in_force ring(101);
  for (const auto& [value, expected_sign, printed] :
       {std::tuple(-3, 1, "-3"), std::tuple(-120, 1, "-120"), std::tuple(205, -1, "104"),
        std::tuple(1200, -1, "1099")}) {
    EXPECT_EQ(sign(Fp(value)), expected_sign) << value;
    EXPECT_EQ(text_of(Fp(value)), printed);
    EXPECT_EQ(len(Fp(value)), static_cast<int>(std::string(printed).size())) << value;
  }
}

TEST(Fp, LenOfAnIntCountsAtMostFiveDigits) {
  for (const int n : {0, 9, 10, 99, 100, 999, 1000, 9999, 10000, 99999}) {
    EXPECT_EQ(len(n), static_cast<int>(std::to_string(n).size()));
    EXPECT_EQ(len(-n), static_cast<int>(std::to_string(-n).size()));
  }
  EXPECT_EQ(len(-5), 2);
  EXPECT_EQ(len(100000), 5);
  EXPECT_EQ(len(123456), 5);
  EXPECT_EQ(len(-123456), 6);
  EXPECT_EQ(len(INT_MAX), 5);
  EXPECT_EQ(len(INT_MIN), 6);
}

TEST(Fp, ReadsRationalsModuloThePrime) {
  const ring_in_force ring(101);
  EXPECT_EQ(read("3/2").value(), 52);
  EXPECT_EQ(read("202").value(), 0);
  EXPECT_EQ(read("-2").value(), 99);
  EXPECT_EQ(read("-3/2").value(), 49);
  EXPECT_EQ(read("3/-2").value(), 49);
  EXPECT_EQ(read("-101").value(), 0);
}

TEST(Fp, ReadsAFractionInLowestTerms) {
  const ring_in_force ring(101);
  EXPECT_EQ(read("202/101").value(), 2);
  EXPECT_EQ(read("0/101").value(), 0);
}

TEST(Fp, ReadsDecimallyWhateverTheStreamIsSetTo) {
  const ring_in_force ring(101);
  std::istringstream in("10");
  Fp x(0);
  in >> std::hex >> x;
  EXPECT_EQ(x.value(), 10);
}

TEST(Fp, ReadsEnormousNumbersExactly) {
  const ring_in_force ring(251);
  std::mt19937 random(1);
  std::string digits = "1";
  int residue = 1;
  for (int i = 0; i < 5000; ++i) {
    const int digit = below(random, 10);
    digits += static_cast<char>('0' + digit);
    residue = (residue * 10 + digit) % 251;
  }
  EXPECT_EQ(read(digits).value(), residue);
  EXPECT_EQ(read("-" + digits).value(), (251 - residue) % 251);
  ASSERT_NE(residue, 0);
  EXPECT_EQ(read("1/" + digits).value(), plain_inverse(residue, 251));
}

TEST(Fp, ReadsEveryQuotientOfSmallNumbers) {
  for (const int p : {2, 3, 101, 251}) {
    const ring_in_force ring(p);
    for (int a = -12; a <= 12; ++a) {
      for (int b = 1; b <= 12; ++b) {
        if (b % p == 0 || std::gcd(b, p) != 1) continue;
        const int residue = (a + 12 * p) % p;
        ASSERT_EQ(read(std::to_string(a) + "/" + std::to_string(b)).value(),
                  residue * plain_inverse(b % p, p) % p)
            << a << "/" << b << " mod " << p;
      }
    }
  }
}

TEST(Fp, FailsToReadWhatIsNotANumber) {
  const ring_in_force ring(101);
  std::istringstream in("abc");
  Fp x(7);
  EXPECT_FALSE(in >> x);
  EXPECT_FALSE(in.eof());
}

TEST(Fp, IsZeroWhenNothingCouldBeRead) {
  const ring_in_force ring(101);
  EXPECT_EQ(read("abc").value(), 0);
  EXPECT_EQ(read("").value(), 0);
  EXPECT_EQ(read("3/x").value(), 0);
  EXPECT_EQ(read("3/").value(), 0);
}

TEST(Fp, ReadingADenominatorDivisibleByThePrimeIsADivisionByZero) {
  const ring_in_force ring(101);
  expect_division_fault("Fp", [] { read("1/101"); });
  expect_division_fault("Fp", [] { read("5/-202"); });
  expect_division_fault("Fp", [] { read("1/0"); });
}

TEST(Fp, ReadingADenominatorThatDividesZeroIsADivisionByZero) {
  const ring_in_force ring(4);
  expect_division_fault("Fp", [] { read("1/2"); });
}

}  // namespace
}  // namespace zep::tests
