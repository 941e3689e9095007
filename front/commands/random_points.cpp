// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/random_points.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <optional>
#include <utility>

#include "arith/ring.h"
#include "base/interrupt.h"
#include "base/output.h"
#include "linalg/equal_rows.h"

namespace zep::front {

namespace {

// True when at least n points have their coordinates in the current range.
bool enough_points(const workspace& shared, int n) {
  const long long width = static_cast<long long>(shared.range2) - shared.range1 + 1;
  long long points = 1;
  for (int j = 0; j < dim && points < n; ++j) points *= width;
  return points >= n;
}

void draw_row(matrix& P, int i, RandomInteger& coordinate) {
  for (int j = 0; j < P.cols(); ++j) P[i][j] = coordinate();
}

// Draws the second row of the first equal pair anew, as long as there is one.
void redraw_duplicates(matrix& P, RandomInteger& coordinate) {
  equal_rows rows(P);
  while (const auto pair = rows.first_pair()) {
    heed_interrupt();
    const int k = pair->second;
    const std::string before = equal_rows::contents(P, k);
    draw_row(P, k, coordinate);
    rows.row_changed(P, k, before);
  }
}

// The number of points that is typed; none, with a message, if there can't be such a set.
std::optional<int> read_number_of_points(session& z) {
  try {
    const int n = z.typed.integer();
    if (n <= 0) {
      z.shared.wrong.complain("number of points has to be greater than zero !\n");
    } else if (!enough_points(z.shared, n)) {
      z.shared.wrong.complain("not enough points in the current range !\n");
    } else {
      return n;
    }
  } catch (const malformed_number&) {
    z.shared.wrong.complain("malformed number\n");
  } catch (const end_of_input&) {
    z.shared.wrong.complain("unexpected end of input\n");
    throw;
  }
  return std::nullopt;
}

// Sets the origin and the unit points, as many as fit; returns their number.
int fix_points(matrix& P) {
  const int units = std::min(P.cols(), P.rows() - 1);
  for (int i = 0; i < units; ++i) P[i + 1][i] = 1;
  return units + 1;
}

int fix_no_points(matrix&) { return 0; }

// Makes a random set whose first points are set, and counted, by `fix`.
void create_random(session& z, int (*fix)(matrix&)) {
  workspace& shared = z.shared;
  auto identifier = reservation::read(z.typed, shared.var, shared.wrong);
  if (!identifier) return;
  const std::optional<int> n = read_number_of_points(z);
  if (!n) return;
  matrix P(dim, *n);
  // An interrupt leaves the session's generator as it was.
  ACG generator = shared.gen;
  RandomInteger coordinate(shared.range1, shared.range2, generator);
  for (int i = fix(P); i < *n; ++i) {
    heed_interrupt();
    draw_row(P, i, coordinate);
  }
  redraw_duplicates(P, coordinate);
  shared.gen = generator;
  identifier->fill(std::make_unique<scheme>(std::move(P), shared.report));
  std::cout << Line;
}

}  // namespace

void random1(session& z) { create_random(z, fix_no_points); }

void random2(session& z) { create_random(z, fix_points); }

}  // namespace zep::front
