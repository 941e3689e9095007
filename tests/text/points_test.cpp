// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/points.h"

#include <gtest/gtest.h>

#include "tests/points/point_sets.h"
#include "tests/points/shown.h"

namespace zep::tests {
namespace {

TEST(Points, ArePrintedInOneRun) {
  const ring_in_force ring(101, 2);
  EXPECT_EQ(shown(disp_scheme, rows_of({{2, 0}, {5, 7}})), "<1:2:0><1:5:7>");
  EXPECT_EQ(shown(disp_scheme, rows_of({})), "");
}

TEST(Points, ArePrintedOneByOneWithTheLeastAbsoluteResidues) {
  const ring_in_force ring(101, 3);
  const matrix P = rows_of({{2, 0, 1}, {50, 51, 100}});
  EXPECT_EQ(shown([&](std::ostream& out) { disp_point(out, P, 0); }), "<1:2:0:1>");
  EXPECT_EQ(shown([&](std::ostream& out) { disp_point(out, P, 1); }), "<1:50:-50:-1>");
}

TEST(GeneralPosition, IsSaidOfSetsWithAnIndependentSubset) {
  const ring_in_force ring(101, 3);
  const std::string yes = "scheme is in linearly general position\n" + line;
  const std::string no = "scheme is not in linearly general position\n" + line;
  EXPECT_EQ(shown(lingenpos, rows_of({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}})), yes);
  EXPECT_EQ(shown(lingenpos, rows_of({{0, 0, 0}, {1, 1, 1}, {2, 2, 2}})), no);
  EXPECT_EQ(shown(lingenpos, rows_of({{5, 5, 5}})), yes);
  EXPECT_EQ(shown(lingenpos, rows_of({})), yes);
}

}  // namespace
}  // namespace zep::tests
