// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as they are typed. One place knows their syntax.
//
// Every function skips leading white space and leaves a stream that was good
//   good                     a number was read, even when the input ends right behind it;
//   failed, not at its end   malformed: what fitted (sign, digits, slash) has been taken, the first
//                            character that does not fit is next;
//   failed and at its end    the input ended before the number was complete.
// A stream that had failed before is left alone.
#pragma once

#include <gmpxx.h>

#include <istream>

#include "base/floors.h"

namespace zep::arith {

using Rational = mpq_class;
using Integer = mpz_class;

// Reads a decimal integer with an optional sign. One that does not fit an int is malformed; all of
// its digits are taken.
std::istream& read_integer(std::istream& in, int& n);

// Reads a, or a/b with white space allowed before b; a and b have optional signs. The value is in
// lowest terms with a positive denominator. Throws division_by_zero, as Fp does, for a
// zero denominator.
std::istream& read_rational(std::istream& in, Rational& r);

}  // namespace zep::arith
