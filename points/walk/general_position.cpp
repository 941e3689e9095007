#include "points/walk/general_position.h"

#include <algorithm>
#include <ostream>

#include "base/output.h"

namespace zep::points {

namespace {

// Row i: the coordinates of point i, the leading 1 included.
matrix homogeneous_coordinates(const scheme& X) {
  matrix m(X.P.cols() + 1, X.s);
  for (int i = 0; i < X.s; ++i) {
    m[i][0] = 1;
    std::copy(X.P.row(i).begin(), X.P.row(i).end(), m[i] + 1);
  }
  return m;
}

}  // namespace

bool has_independent_subset(const scheme& X) {
  // A non-zero minor of full size exists exactly when the rank is full; nobody has to look at
  // every subset.
  const matrix m = homogeneous_coordinates(X);
  return rank(m) == std::min(m.rows(), m.cols());
}

void lingenpos(std::ostream& out, scheme& X) {
  out << (has_independent_subset(X) ? "scheme is in linearly general position\n"
                                    : "scheme is not in linearly general position\n")
      << Line;
}

}  // namespace zep::points
