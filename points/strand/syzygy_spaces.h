// SPDX-License-Identifier: GPL-3.0-or-later
// The linear strands of the vanishing ideal and of the canonical module, without bases.
//
// Modulo X_0 the modules of a linear strand are L_k (x) K[V] with spaces L_k, and the map from one
// to the next takes z of L_(k+1) to the sum of x_v (x) (z contracted by x_v): the strand is that of
// Koszul cycles (Eisenbud: The geometry of syzygies, theorem 7.8). A contraction by x_v takes e_T
// to (-1)^i e_(T - v), v the i-th element of T, to 0 without v.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "points/koszul/koszul_complex.h"
#include "points/strand/cell_space.h"

namespace zep::points {

// Goes from level to level of a strand. Only for sets whose variables are all members of O.
class syzygy_spaces {
 public:
  virtual ~syzygy_spaces() = default;
  syzygy_spaces(const syzygy_spaces&) = delete;
  syzygy_spaces& operator=(const syzygy_spaces&) = delete;

  // Number of variables of V.
  int no_of_variables() const { return K_.dim_V(); }

  // The space of this level, and that of the next one.
  const cell_space& here() const { return *here_; }
  const cell_space& next() const { return *next_; }

  // Goes on by a level. A strand that has come to 0 stays there.
  void advance();

  // For functionals on the space of this level, their values at the contractions by x_v of elements
  // of the next one: functionals there.
  std::vector<row> contracted(int v, std::span<const const_row_view> functionals) const;

 protected:
  explicit syzygy_spaces(const koszul_complex& K) : K_(K), contractions_(K.dim_V()) {}

  // To be called once, at the end of construction.
  void start(int level);

  // The space of a level; what a contraction by v of the next level's elements does to the
  // coordinates of this one's.
  virtual std::unique_ptr<cell_space> space(int level) const = 0;
  virtual std::vector<cell_space::summand> contraction(int v) const = 0;

  const koszul_complex& complex() const { return K_; }
  int level() const { return level_; }

 private:
  const koszul_complex& K_;
  int level_ = 0;
  std::unique_ptr<cell_space> here_;
  std::unique_ptr<cell_space> next_;
  std::vector<std::vector<cell_space::summand>> contractions_;
};

// Of the vanishing ideal. The space of level k, which starts with 0, the generators of degree
// alpha, are the cycles of Lambda^(k+1) V (x) A_(alpha-1) modulo boundaries. Coordinates are
// coefficients of critical cells, those of level 0 of all of them: the cell (w, m) belongs to the
// generator that x_w m leads.
class spaces_of_ideal : public syzygy_spaces {
 public:
  // K must outlive it.
  spaces_of_ideal(const koszul_complex& K, int alpha);

 private:
  std::unique_ptr<cell_space> space(int level) const override;
  std::vector<cell_space::summand> contraction(int v) const override;

  int alpha_;
};

// Of the canonical module. The space of level k, which starts with 0, the generators of least
// degree, are the functionals on Lambda^(n-k) V (x) A_top that are 0 at boundaries. The coordinates
// of level 0 are the values at e_V (x) m for the members m of top degree: those of the projections
// to them.
class spaces_of_module : public syzygy_spaces {
 public:
  // K must outlive it.
  explicit spaces_of_module(const koszul_complex& K);

 private:
  std::unique_ptr<cell_space> space(int level) const override;
  std::vector<cell_space::summand> contraction(int v) const override;
};

}  // namespace zep::points
