// SPDX-License-Identifier: GPL-3.0-or-later

#include "reference/candidates.h"

namespace zep::reference {

bool element(list<mmm>& candidates, mmm& m) {
  for (mmm& candidate : candidates) {
    if (candidate == m) {
      mmm& credited = &candidate == &candidates.last() ? m : candidate;
      ++credited.ins;
      return true;
    }
  }
  return false;
}

}  // namespace zep::reference
