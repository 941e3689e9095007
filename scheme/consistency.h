// The invariants of a record.
#pragma once

#include "scheme/scheme.h"

namespace zep {

// In the paranoid build: aborts unless what X holds fits together. Every computation calls it when
// it has stored its results.
void ensure_consistent(const scheme& X);

}  // namespace zep
