// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/reporter.h"

#include "base/interrupt.h"

namespace zep::base {

void progress::count_down(int n) const {
  if (!to_.is_attentive()) return;
  for (int remaining = n; remaining > 0; --remaining) {
    heed_interrupt();
    count(remaining);
  }
}

}  // namespace zep::base
