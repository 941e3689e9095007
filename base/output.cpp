// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/output.h"

#include <charconv>

namespace zep::base {

char* write_number(char* to, int n) { return std::to_chars(to, to + longest_number, n).ptr; }

}  // namespace zep::base
