// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/combinations.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

#include "base/interrupt.h"
#include "base/paranoid.h"
#include "linalg/kernels/product_tile.h"
#include "linalg/kernels/row_kernels.h"
#include "linalg/row_operations.h"

namespace zep::linalg {

namespace {

// c += a * b, tile by tile, for one stretch of the columns of a after the other.
class tiled_product {
 public:
  // There are rows in c.
  tiled_product(std::span<const row_view> c, std::span<const const_row_view> a,
                std::span<const const_row_view> b, tile_kernel* kernel)
      : c_(c),
        a_(a),
        b_(b),
        n_(c.front().size()),
        kernel_(kernel),
        packed_a_((c.size() + tile_rows - 1) / tile_rows * tile_rows * products_in_a_tile),
        packed_b_(products_in_a_tile * tile_cols) {}

  void add() {
    for (first_ = 0; first_ < b_.size(); first_ += products_in_a_tile) {
      length_ = std::min(products_in_a_tile, b_.size() - first_);
      pack_coefficients();
      for (std::size_t x = 0; x < n_; x += tile_cols) {
        heed_interrupt();
        pack_elements(x);
        for (std::size_t i = 0; i < c_.size(); i += tile_rows) work_on_tile(i, x);
      }
    }
  }

 private:
  void pack_coefficients() {
    std::fill(packed_a_.begin(), packed_a_.end(), std::int16_t{0});
    for (std::size_t i = 0; i < c_.size(); ++i) {
      const std::size_t in_tile = i % tile_rows;
      std::int16_t* const to = packed_a_.data() + (i - in_tile) * products_in_a_tile + 2 * in_tile;
      const const_row_view row = a_[i].subspan(first_, length_);
      for (std::size_t k = 0; k < length_; ++k) {
        to[k / 2 * 2 * tile_rows + k % 2] = row[k].value();
      }
    }
  }

  void pack_elements(std::size_t x) {
    for (std::size_t k = 0; k < length_; k += 2) {
      std::int16_t* const to = packed_b_.data() + k * tile_cols;
      const Fp8* const even = b_[first_ + k].data() + x;
      if (k + 1 < length_ && x + tile_cols <= n_) {
        interleave(to, even, b_[first_ + k + 1].data() + x);
      } else {
        const Fp8* const odd = k + 1 < length_ ? b_[first_ + k + 1].data() + x : nullptr;
        interleave_edge(to, even, odd, std::min(tile_cols, n_ - x));
      }
    }
  }

  // By way of arrays that nothing else can point into, and out of line: only then do compilers make
  // a few vector instructions of it.
  [[gnu::noinline]] static void interleave(std::int16_t* to, const Fp8* even, const Fp8* odd) {
    std::array<std::uint8_t, tile_cols> evens{};
    std::array<std::uint8_t, tile_cols> odds{};
    constexpr std::size_t width = 2 * tile_cols;
    std::array<std::int16_t, width> both{};
    std::memcpy(evens.data(), even, tile_cols);
    std::memcpy(odds.data(), odd, tile_cols);
    for (std::size_t y = 0; y < tile_cols; ++y) {
      both[2 * y] = evens[y];
      both[2 * y + 1] = odds[y];
    }
    std::memcpy(to, both.data(), sizeof both);
  }

  // There may be no odd row, and less than a whole tile.
  static void interleave_edge(std::int16_t* to, const Fp8* even, const Fp8* odd,
                              std::size_t width) {
    std::fill_n(to, 2 * tile_cols, std::int16_t{0});
    for (std::size_t y = 0; y < width; ++y) {
      to[2 * y] = even[y].value();
      if (odd != nullptr) to[2 * y + 1] = odd[y].value();
    }
  }

  // The tile with row i and place x in its corner. What is missing to it is put beside.
  void work_on_tile(std::size_t i, std::size_t x) {
    std::array<std::array<Fp8, tile_cols>, tile_rows> beside{};
    std::array<std::uint8_t*, tile_rows> rows{};
    const std::size_t height = std::min(tile_rows, c_.size() - i);
    const std::size_t width = std::min(tile_cols, n_ - x);
    for (std::size_t k = 0; k < tile_rows; ++k) {
      const bool inside = k < height && width == tile_cols;
      if (k < height && !inside) std::copy_n(c_[i + k].data() + x, width, beside[k].data());
      rows[k] = reinterpret_cast<std::uint8_t*>(inside ? c_[i + k].data() + x : beside[k].data());
    }
    kernel_(rows.data(), packed_a_.data() + i * products_in_a_tile, packed_b_.data(),
            (length_ + 1) / 2, static_cast<lane>(Fp8::prime));
    if (width == tile_cols) return;
    for (std::size_t k = 0; k < height; ++k) {
      std::copy_n(beside[k].data(), width, c_[i + k].data() + x);
    }
  }

  std::span<const row_view> c_;
  std::span<const const_row_view> a_;
  std::span<const const_row_view> b_;
  std::size_t n_;
  tile_kernel* kernel_;
  // All rows of a and one column of tiles of b, for the stretch from first_ on.
  std::vector<std::int16_t> packed_a_;
  std::vector<std::int16_t> packed_b_;
  std::size_t first_ = 0;
  std::size_t length_ = 0;
};

// Packing pays from so many rows, and so many summands, on: measured by the benchmark of
// add_combinations, with AVX2.
constexpr std::size_t least_worth_packing = 16;

// Adding a multiple of a row takes less than twice the time of a product in a tile, an element.
// So rows of coefficients with more zeros than that are not worth a tile.
constexpr std::size_t zeros_worth_looking = 4;

std::size_t no_of_nonzero(const_row_view s) {
  return s.size() - static_cast<std::size_t>(std::count(s.begin(), s.end(), Fp8(0)));
}

bool have_one_length(std::span<const row_view> c, std::span<const const_row_view> b) {
  if (c.empty()) return true;
  const std::size_t length = c.front().size();
  const auto has_it = [length](const_row_view r) { return r.size() == length; };
  return std::all_of(c.begin(), c.end(), has_it) && std::all_of(b.begin(), b.end(), has_it);
}

void add_combination(row_view c, const_row_view a, std::span<const const_row_view> b) {
  for (std::size_t k = 0; k < b.size(); ++k) {
    if (a[k] == 0) continue;
    heed_interrupt();
    axpy(c, b[k], a[k]);
  }
}

}  // namespace

void add_combinations(std::span<const row_view> c, const matrix& a,
                      std::span<const const_row_view> b) {
  ensure("rows of one call have one length", [&] { return have_one_length(c, b); });
  tile_kernel* const add_to_tile = kernels_in_force::get().add_to_tile;
  const bool in_tiles = add_to_tile != nullptr && b.size() >= least_worth_packing;
  std::vector<row_view> tiled_c;
  std::vector<const_row_view> tiled_a;
  for (std::size_t i = 0; i < c.size(); ++i) {
    const const_row_view coefficients = a[static_cast<int>(i)];
    if (in_tiles && no_of_nonzero(coefficients) * zeros_worth_looking > b.size()) {
      tiled_c.push_back(c[i]);
      tiled_a.push_back(coefficients);
    } else {
      add_combination(c[i], coefficients, b);
    }
  }
  if (tiled_c.size() >= least_worth_packing) {
    tiled_product(tiled_c, tiled_a, b, add_to_tile).add();
    return;
  }
  for (std::size_t i = 0; i < tiled_c.size(); ++i) add_combination(tiled_c[i], tiled_a[i], b);
}

}  // namespace zep::linalg
