// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/ring_in_force.h"

#include <algorithm>
#include <iterator>

#include "arith/Fp8.h"
#include "arith/ordering.h"
#include "base/paranoid.h"

namespace zep::arith {

void enforce(const ring& R) {
  ensure("a ring has a characteristic and a dimension that there can be",
         [&] { return R.p >= 2 && R.p <= largest_prime && R.n >= 2 && R.n < max_variables; });
  ensure("each variable of a ring has a name", [&] { return std::ssize(R.names) > R.n; });
  ring_data::current() = R;
  ring_data::p_ = R.p;
  ring_data::reciprocal_ = 0xFFFFFFFF / static_cast<std::uint32_t>(R.p);
  ring_data::dim_ = R.n;
  ring_data::proj_ = R.n + 1;
  std::copy_n(R.names.begin(), R.n + 1, ring_data::names_.begin());
  Fp8::fill_tables();
  order_in_force::set(R.order);
}

}  // namespace zep::arith
