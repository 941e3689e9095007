// SPDX-License-Identifier: GPL-3.0-or-later
// The loops behind the operations on rows, in several variants that give the same bytes.
//
// A row is n contiguous bytes below p, the characteristic in force; rows may have any length and
// alignment. They do not overlap unless said.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "linalg/kernels/product_tile.h"
#include "linalg/kernels/residues.h"

namespace zep::linalg {

struct row_kernels {
  const char* name;
  // Sets d to d + c * s, or d + s, or d - s.
  void (*axpy)(std::uint8_t* d, const std::uint8_t* s, std::size_t n, factor c);
  void (*add)(std::uint8_t* d, const std::uint8_t* s, std::size_t n, lane p);
  void (*subtract)(std::uint8_t* d, const std::uint8_t* s, std::size_t n, lane p);
  // Sets d to d + s where p = 2.
  void (*add_bits)(std::uint8_t* d, const std::uint8_t* s, std::size_t n);
  // Sets d to c * d, or -d.
  void (*scale)(std::uint8_t* d, std::size_t n, factor c);
  void (*negate)(std::uint8_t* d, std::size_t n, lane p);
  // Sets d to the elementwise product of a and b modulo m.p; d may be a or b.
  void (*pointwise_product)(std::uint8_t* d, const std::uint8_t* a, const std::uint8_t* b,
                            std::size_t n, divisor m);
  // A number, perhaps negative, that is the sum of a[i] * b[i] modulo p; n is at most
  // products_in_a_sum, and a and b may be the same.
  std::int32_t (*dot)(const std::uint8_t* a, const std::uint8_t* b, std::size_t n, lane p);
  // Adds a product of matrices to a tile. Null where the variant has nothing faster than adding
  // multiples of rows one by one.
  tile_kernel* add_to_tile;
};

// One element after the other, with the tables of Fp8: what the other variants are measured by.
extern const row_kernels look_up_kernels;

// Loops that the compiler makes vector instructions of, whatever the processor.
extern const row_kernels portable_kernels;

// Vector instructions of 32 bytes. Null where the processor does not have them.
const row_kernels* avx2_kernels();

// The same with tiles in vector instructions of 64 bytes. Null where the processor does not have
// them.
const row_kernels* avx512_kernels();

// All variants that this processor can run, the fastest one last.
std::vector<const row_kernels*> runnable_kernels();

// Puts a variant in force while it lives, for tests and benchmarks. The fastest one is in force
// from the start of main.
class kernels_in_force {
 public:
  explicit kernels_in_force(const row_kernels& kernels) : before_(current_) { current_ = &kernels; }
  ~kernels_in_force() { current_ = before_; }
  kernels_in_force(const kernels_in_force&) = delete;
  kernels_in_force& operator=(const kernels_in_force&) = delete;

  static const row_kernels& get() { return *current_; }

 private:
  static const row_kernels* current_;

  const row_kernels* before_;
};

}  // namespace zep::linalg
