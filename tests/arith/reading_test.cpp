// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/reading.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "tests/arith/division_fault.h"
#include "tests/draw.h"

namespace zep::tests {
namespace {

enum class outcome { number, malformed, ended };

std::ostream& operator<<(std::ostream& out, outcome o) {
  const char* const names[] = {"number", "malformed", "ended"};
  return out << names[static_cast<int>(o)];
}

outcome outcome_of(const std::istream& in) {
  if (in.good()) return outcome::number;
  return in.eof() ? outcome::ended : outcome::malformed;
}

std::string rest_of(std::istream& in) {
  in.clear();
  return {std::istreambuf_iterator<char>(in), {}};
}

struct failing_case {
  std::string text;
  outcome expected;
  std::string rest;
};

struct good_case {
  std::string text;
  std::string value;
  std::string rest;
};

void expect_failures_of_rationals(const std::vector<failing_case>& cases) {
  for (const auto& [text, expected, rest] : cases) {
    std::istringstream in(text);
    Rational r;
    EXPECT_FALSE(read_rational(in, r)) << "\"" << text << "\"";
    EXPECT_EQ(outcome_of(in), expected) << "\"" << text << "\"";
    EXPECT_EQ(rest_of(in), rest) << "\"" << text << "\"";
  }
}

void expect_rationals(const std::vector<good_case>& cases) {
  for (const auto& [text, value, rest] : cases) {
    std::istringstream in(text);
    Rational r;
    EXPECT_TRUE(read_rational(in, r)) << "\"" << text << "\"";
    EXPECT_EQ(outcome_of(in), outcome::number) << "\"" << text << "\"";
    EXPECT_EQ(r.get_str(), value) << "\"" << text << "\"";
    EXPECT_EQ(rest_of(in), rest) << "\"" << text << "\"";
  }
}

TEST(Reading, RationalIsAnIntegerOrAFraction) {
  expect_rationals({{"3", "3", ""},
                    {"-2", "-2", ""},
                    {"+7", "7", ""},
                    {"5/7", "5/7", ""},
                    {"0", "0", ""},
                    {"-0", "0", ""},
                    {"0/5", "0", ""}});
}

TEST(Reading, RationalIsInLowestTermsWithPositiveDenominator) {
  expect_rationals({{"10/4", "5/2", ""},
                    {"3/-4", "-3/4", ""},
                    {"-3/-6", "1/2", ""},
                    {"3/+4", "3/4", ""},
                    {"202/101", "2", ""}});
}

TEST(Reading, LeadingZerosDoNotChangeTheBase) {
  expect_rationals({{"007", "7", ""}, {"010/08", "5/4", ""}, {"0x10", "0", "x10"}});
}

TEST(Reading, SkipsWhiteSpaceInFrontOfBothNumbers) {
  expect_rationals({{" \t\n\v\f\r12", "12", ""}, {"3/ 4", "3/4", ""}, {"3/\n\t-4", "-3/4", ""}});
}

TEST(Reading, RationalEndsAtTheFirstCharacterThatDoesNotFit) {
  expect_rationals({{"12 x", "12", " x"},
                    {"12abc", "12", "abc"},
                    {"3 /4", "3", " /4"},
                    {"1.5", "1", ".5"},
                    {"3-4", "3", "-4"},
                    {"1/2/3", "1/2", "/3"},
                    {"1/2\n", "1/2", "\n"}});
}

TEST(Reading, MalformedRationalLeavesTheFirstCharacterThatDoesNotFit) {
  expect_failures_of_rationals({{"abc", outcome::malformed, "abc"},
                                {"  abc", outcome::malformed, "abc"},
                                {"/4", outcome::malformed, "/4"},
                                {"-x", outcome::malformed, "x"},
                                {"--1", outcome::malformed, "-1"},
                                {"+-1", outcome::malformed, "-1"},
                                {"- 3", outcome::malformed, " 3"},
                                {"3/x", outcome::malformed, "x"},
                                {"3/-x", outcome::malformed, "x"},
                                {"3//4", outcome::malformed, "/4"},
                                {"3/- 4", outcome::malformed, " 4"},
                                {"\xE9", outcome::malformed, "\xE9"}});
}

TEST(Reading, MissingRestOfARationalIsTheEndOfTheInput) {
  expect_failures_of_rationals({{"", outcome::ended, ""},
                                {" \n ", outcome::ended, ""},
                                {"-", outcome::ended, ""},
                                {"+", outcome::ended, ""},
                                {"3/", outcome::ended, ""},
                                {"3/  ", outcome::ended, ""},
                                {"3/-", outcome::ended, ""}});
}

TEST(Reading, StaysAtTheEndWhenReadAgain) {
  std::istringstream in("3");
  Rational r;
  EXPECT_TRUE(read_rational(in, r));
  EXPECT_FALSE(read_rational(in, r));
  EXPECT_EQ(outcome_of(in), outcome::ended);
}

TEST(Reading, LeavesAStreamThatFailedBefore) {
  std::istringstream in("x 5");
  in.setstate(std::ios::failbit);
  Rational r(7);
  int n = 7;
  EXPECT_FALSE(read_rational(in, r));
  EXPECT_FALSE(read_integer(in, n));
  EXPECT_EQ(outcome_of(in), outcome::malformed);
  EXPECT_EQ(r.get_str(), "7");
  EXPECT_EQ(n, 7);
  EXPECT_EQ(rest_of(in), "x 5");
}

TEST(Reading, RationalsMayBeEnormous) {
  const std::string digits = "7" + std::string(20000, '3');
  expect_rationals({{digits + " rest", digits, " rest"},
                    {"-" + digits + "/" + digits, "-1", ""},
                    {"1/" + digits, "1/" + digits, ""}});
}

TEST(Reading, RationalsReadBackAsTheyPrint) {
  std::mt19937 random(2);
  for (int i = 0; i < 300; ++i) {
    Rational expected(below(random, 2000) - 1000, 1 + below(random, 1000));
    expected.canonicalize();
    std::istringstream in(expected.get_str());
    Rational r;
    ASSERT_TRUE(read_rational(in, r));
    ASSERT_EQ(r.get_str(), expected.get_str());
  }
}

TEST(Reading, ZeroDenominatorIsADivisionByZero) {
  for (const std::string text : {"1/0", "0/0", "1/-0", "1/000"}) {
    expect_division_fault("Fp", [&text] {
      std::istringstream in(text);
      Rational r;
      read_rational(in, r);
    });
  }
}

void expect_integer(const std::string& text, int value, const std::string& rest) {
  std::istringstream in(text);
  int n = 12345;
  EXPECT_TRUE(read_integer(in, n)) << "\"" << text << "\"";
  EXPECT_EQ(outcome_of(in), outcome::number) << "\"" << text << "\"";
  EXPECT_EQ(n, value) << "\"" << text << "\"";
  EXPECT_EQ(rest_of(in), rest) << "\"" << text << "\"";
}

void expect_failure_of_integer(const failing_case& c) {
  std::istringstream in(c.text);
  int n = 0;
  EXPECT_FALSE(read_integer(in, n)) << "\"" << c.text << "\"";
  EXPECT_EQ(outcome_of(in), c.expected) << "\"" << c.text << "\"";
  EXPECT_EQ(rest_of(in), c.rest) << "\"" << c.text << "\"";
}

TEST(Reading, IntegerIsASignAndDecimalDigits) {
  expect_integer("12", 12, "");
  expect_integer("  -7;", -7, ";");
  expect_integer("+5 6", 5, " 6");
  expect_integer("010", 10, "");
  expect_integer("5/7", 5, "/7");
  expect_integer("-0", 0, "");
}

TEST(Reading, IntegerCoversTheWholeRangeOfInt) {
  expect_integer("2147483647", 2147483647, "");
  expect_integer("-2147483648", -2147483647 - 1, "");
  expect_integer("000000000000000000012", 12, "");
}

TEST(Reading, IntegerThatDoesNotFitIsMalformedAndTaken) {
  expect_failure_of_integer({"2147483648", outcome::malformed, ""});
  expect_failure_of_integer({"-2147483649 x", outcome::malformed, " x"});
  expect_failure_of_integer({std::string(5000, '9') + "abc", outcome::malformed, "abc"});
}

TEST(Reading, MalformedIntegerLeavesTheFirstCharacterThatDoesNotFit) {
  expect_failure_of_integer({"abc", outcome::malformed, "abc"});
  expect_failure_of_integer({"-x", outcome::malformed, "x"});
  expect_failure_of_integer({"- 3", outcome::malformed, " 3"});
  expect_failure_of_integer({"/7", outcome::malformed, "/7"});
}

TEST(Reading, MissingIntegerIsTheEndOfTheInput) {
  expect_failure_of_integer({"", outcome::ended, ""});
  expect_failure_of_integer({" \n", outcome::ended, ""});
  expect_failure_of_integer({"-", outcome::ended, ""});
}

}  // namespace
}  // namespace zep::tests
