// SPDX-License-Identifier: GPL-3.0-or-later
// The sessions that are timed.
#pragma once

#include <filesystem>
#include <span>
#include <string>

#include "base/floors.h"

namespace zep::tests {

enum class arrangement {
  none,
  // Distinct points with irregular coordinates.
  irregular,
  // Points (1 : t : t^2 : ...), t = 1, 2, ..., of the rational normal curve.
  normal_curve
};

// One session: some points of P^n over F_p, and the commands that are typed about them. They are
// the point set A.
struct session_case {
  const char* what = "";
  const char* commands = "";
  int points = 0;
  int n = 0;
  int p = 0;
  arrangement kind = arrangement::irregular;
  // Takes so long that it is run only on demand.
  bool slow = false;
};

std::span<const session_case> session_cases();

// What is shown, and looked at by --filter: "gbasis 1000 P^3 F_101".
std::string name_of(const session_case& timed);

// The files of a case in its folder.
inline constexpr const char* points_file = "points";
inline constexpr const char* session_file = "session";

// Writes both.
void write_case(const session_case& timed, const std::filesystem::path& folder);

}  // namespace zep::tests
