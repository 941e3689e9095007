// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of polynomials with numbers: g1 = ..., g2 = ... .
#pragma once

#include <ostream>
#include <string_view>

#include "arith/Fp.h"
#include "arith/polynomial.h"
#include "base/interrupt.h"

namespace zep::text {

// Prints polynomial(0) .. polynomial(n - 1), each on a line of its own behind the label and its
// number, from 1 on. Long ones are broken, beginning at the column behind that.
template <class Polynomial>
void show_numbered(std::ostream& out, std::string_view label, int n, Polynomial polynomial) {
  for (int i = 1; i <= n; ++i) {
    heed_interrupt();
    out << label << i << " = ";
    show(out, polynomial(i - 1), static_cast<int>(label.size()) + len(i) + 3);
    out << "\n";
  }
}

}  // namespace zep::text
