// SPDX-License-Identifier: GPL-3.0-or-later
// The ring in force: what everybody reads of it.
//
// There is one at a time in a process: operators on field elements and monomials must not have to
// look for it. `enforce` alone changes it (ring_in_force.h), and all of it at once.
//
// Affine monomials use the first `dim` variables. Projective ones use `proj` = `dim` + 1; the last
// of them homogenises.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/floors.h"

namespace zep::arith {

// No ring has more variables: one monomial slot each.
inline constexpr int max_variables = 27;

// Names for all of them, one character each.
inline constexpr char default_names[] = "XYZTabcdefghijklmnopqrstuvw";
static_assert(sizeof default_names == max_variables + 1);

// Both orders are compatible with degrees, which the Buchberger-Moeller algorithm relies on.
enum class term_order { deglex, degrevlex };

// The homogeneous coordinate ring of P^n over F_p. A value; most of what the program holds has a
// meaning in one ring only.
struct ring {
  // 2 .. largest_prime. With a composite p nothing breaks, but results mean nothing.
  int p = 101;
  // 2 .. max_variables - 1.
  int n = 3;
  // The variables, one character each, at least n + 1 of them, the homogenising one last of these.
  std::string names = default_names;
  term_order order = term_order::degrevlex;

  bool operator==(const ring&) const = default;
};

// The ring in force in the form in which it is read most.
class ring_data {
  friend void enforce(const ring& R);
  friend const ring& current_ring();

  static ring& current();
  static int p_;
  static std::uint32_t reciprocal_;
  static int dim_;
  static int proj_;
  static std::array<char, max_variables> names_;

 public:
  static constexpr const int& p = p_;
  static constexpr const std::uint32_t& reciprocal = reciprocal_;
  static constexpr const int& dim = dim_;
  static constexpr const int& proj = proj_;
  // Those of the variables that there are; what follows means nothing.
  static constexpr const std::array<char, max_variables>& names = names_;
};

// Number of affine variables, the dimension of the projective space.
inline constexpr const int& dim = ring_data::dim;

// Number of homogeneous coordinates.
inline constexpr const int& proj = ring_data::proj;

// The ring in force; the default one before any other.
const ring& current_ring();

}  // namespace zep::arith
