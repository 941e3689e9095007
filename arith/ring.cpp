// SPDX-License-Identifier: GPL-3.0-or-later

#include "arith/ring.h"

namespace zep::arith {

// Those of the default ring.
int ring_data::p_ = 101;
std::uint32_t ring_data::reciprocal_ = 0xFFFFFFFF / 101;
int ring_data::dim_ = 3;
int ring_data::proj_ = 4;
std::array<char, max_variables> ring_data::names_ = {'X', 'Y', 'Z', 'T'};

ring& ring_data::current() {
  static ring R;
  return R;
}

const ring& current_ring() { return ring_data::current(); }

}  // namespace zep::arith
