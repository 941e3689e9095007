// The invariants of a record.
#pragma once

#include "points/record/scheme.h"

namespace zep::points {

// In the paranoid build: aborts unless what X holds fits together. Every computation calls it when
// it has stored its results.
void ensure_consistent(const scheme& X);

}  // namespace zep::points
