// SPDX-License-Identifier: GPL-3.0-or-later
// Exhausted memory.
#pragma once

#include "base/floors.h"

namespace zep::front {

// Says on standard error that memory is exhausted, and ends the process with status 10.
[[noreturn]] void mem_warn();

// Makes mem_warn the answer to every failed allocation, those of the multiprecision library
// included.
void install_mem_warn();

}  // namespace zep::front
