// SPDX-License-Identifier: GPL-3.0-or-later
// Functions on field elements that no command needs.
#pragma once

#include "arith/Fp.h"
#include "arith/reading.h"

namespace zep::reference {

// x to the power |n|.
Fp pow(Fp x, int n);

// The negative of an element of sign -1, the element itself otherwise.
Fp abs(Fp x);

// Printed width.
int len(const Rational& r);

}  // namespace zep::reference
