// SPDX-License-Identifier: GPL-3.0-or-later
// A set of points that remembers what has been computed for it.
#pragma once

#include <optional>
#include <vector>

#include "arith/ring.h"
#include "base/reporter.h"
#include "linalg/matrix.h"
#include "points/record/results.h"
#include "points/strand/linid.h"
#include "points/strand/linom.h"

namespace zep::points {

// A set X of s points of P^n over F_p. It alone knows which result needs which: a result that is
// asked for is made when it is not there, after those that it needs, and kept. What is made may end
// by `interrupted`; results that were complete by then are kept, and `restore` takes them back.
//
// The points are taken to be distinct and p to be prime; otherwise all results are meaningless, but
// nothing breaks. The ring that the scheme was made in must be in force in every call, but for the
// names of the variables.
class scheme {
 public:
  // The points as rows of affine coordinates, (1 : x_1 : ... : x_n) without the 1, in the ring in
  // force. Computations tell their progress to the reporter, which must outlive the scheme.
  scheme(matrix P, reporter& to);

  // Number of points, and the points.
  int s() const { return P_.rows(); }
  const matrix& P() const { return P_; }

  // What has been computed; computes nothing.
  const results& known() const { return known_; }

  // Brings back what was known at an earlier moment.
  void restore(results before) { known_ = std::move(before); }

  // The results. The references are good until the next call of restore, that to the presentation
  // of a scheme without points until it is asked for again: there it is made each time.
  const order_ideal& bu_mo();
  const verdicts& sep();
  const leading_forms& beta_matrix();
  const canonical_forms& Can_Lf();
  const ideal& min_Ix();
  const ideal& socle();
  const presentation& omega();

  // Whether X has the Cayley-Bacharach property, by the separators unless it is known; whether X is
  // arithmetically Gorenstein, by the separators if somebody has asked for them, else by the socle.
  bool is_CB();
  bool is_ar_Go();

  // The first k points with dependent leading forms of separators, 0 <= k <= delta; not kept.
  std::optional<std::vector<int>> dependent_separators(int k);

  // Make sure that the numbers of the strands are there.
  void linid();
  void linom();

  // Follow the strands anew, level by level, and keep the numbers as far as they have come. They
  // count as computed, from then on or as before, as `counts` says.
  enum class numbers { count, stay };
  void linid(const level_action& act, numbers counts);
  void linom(const level_visitor& visit, numbers counts);

 private:
  template <class T, class Make>
  const T& keep(kept<T>& place, Make make);

  ring ring_;
  matrix P_;
  reporter* to_;
  results known_;
};

}  // namespace zep::points
