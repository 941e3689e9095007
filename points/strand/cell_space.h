// SPDX-License-Identifier: GPL-3.0-or-later
// Spaces of cycles, seen through the coefficients of cells.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "linalg/matrix.h"

namespace zep::points {

// A space L of finite dimension, with some functionals on it that have names: the coefficients of
// cells, by their places in a chain. A basis of all functionals is among them, the coordinates, and
// a functional on L is a row over these.
class cell_space {
 public:
  // No functional but zero is named yet.
  cell_space(std::size_t places, int dimension);

  // The number of coordinates.
  int dimension() const { return dimension_; }

  // Names a coordinate, 0 <= k < dimension, or another functional.
  void set_coordinate(std::size_t place, int k) { coordinate_[place] = k; }
  void set_functional(std::size_t place, row functional);

  // The coordinate at a place, -1 if it is none.
  int coordinate(std::size_t place) const { return coordinate_[place]; }

  // A summand of functionals that are made of others: `sign` times the entry of the coordinate
  // `from`, which belongs to another space, at the functional of a place.
  struct summand {
    std::size_t place = 0;
    int from = 0;
    Fp8 sign;
  };

  // Each of the given rows, functionals on another space, becomes the sum of its summands here.
  std::vector<row> sums(std::span<const summand> summands,
                        std::span<const const_row_view> functionals) const;

 private:
  int dimension_;
  // By place: the coordinate, and the index in functionals_, or -1.
  std::vector<int> coordinate_;
  std::vector<int> index_;
  std::vector<row> functionals_;
};

}  // namespace zep::points
