// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/record/scheme.h"

#include <utility>

#include "base/paranoid.h"
#include "points/ideal/artinian_forms.h"
#include "points/ideal/minimal_generators.h"
#include "points/ideal/socle.h"
#include "points/module/canonical_module.h"
#include "points/walk/buchberger_moeller.h"
#include "points/walk/uniformity.h"

namespace zep::points {

namespace {

bool agree_but_for_names(const ring& R, const ring& S) {
  return R.p == S.p && R.n == S.n && R.order == S.order;
}

}  // namespace

scheme::scheme(matrix P, reporter& to)
    : ring_(current_ring()), P_(std::move(P)), to_(&to), known_(ring_.n) {
  ensure("a point has a coordinate for each affine variable", [&] { return P_.cols() == ring_.n; });
}

template <class T, class Make>
const T& scheme::keep(kept<T>& place, Make make) {
  ensure("a scheme computes in its ring",
         [&] { return agree_but_for_names(ring_, current_ring()); });
  if (place == nullptr) place = std::make_shared<const T>(make());
  return *place;
}

const order_ideal& scheme::bu_mo() {
  return keep(known_.bu_mo, [&] { return points::bu_mo(P_, *to_); });
}

// The verdict on the Gorenstein property stays where the separators leave it open.
const verdicts& scheme::sep() {
  const order_ideal& X = bu_mo();
  return keep(known_.sep, [&] {
    const verdicts found = points::sep(X, *to_);
    known_.is_CB = found.is_CB;
    known_.is_ar_Go = found.is_ar_Go.value_or(known_.is_ar_Go);
    return found;
  });
}

const leading_forms& scheme::beta_matrix() {
  sep();
  return keep(known_.beta_matrix, [&] { return points::beta_matrix(bu_mo(), *to_); });
}

const canonical_forms& scheme::Can_Lf() {
  const order_ideal& X = bu_mo();
  return keep(known_.Can_Lf, [&] { return points::Can_Lf(X); });
}

const ideal& scheme::min_Ix() {
  const canonical_forms& forms = Can_Lf();
  return keep(known_.min_Ix, [&] { return points::min_Ix(bu_mo(), forms); });
}

const ideal& scheme::socle() {
  const canonical_forms& forms = Can_Lf();
  return keep(known_.socle, [&] { return points::socle(bu_mo(), forms); });
}

const presentation& scheme::omega() {
  const order_ideal& X = bu_mo();
  if (!has_generators(known_.omega)) known_.omega = nullptr;
  return keep(known_.omega, [&] { return points::omega(X, *to_); });
}

bool scheme::is_CB() {
  if (!known_.is_CB) sep();
  return known_.is_CB;
}

bool scheme::is_ar_Go() {
  if (known_.sep == nullptr) {
    known_.is_ar_Go = socle().no_of_gens() == 1;
    if (known_.is_ar_Go) known_.is_CB = true;
  }
  return known_.is_ar_Go;
}

std::optional<std::vector<int>> scheme::dependent_separators(int k) {
  return points::dependent_separators(beta_matrix().beta, k, *to_);
}

void scheme::linid() {
  if (!known_.strands.linid) linid(nullptr, numbers::count);
}

void scheme::linom() {
  if (!known_.strands.linom) linom(nullptr, numbers::count);
}

void scheme::linid(const level_action& act, numbers counts) {
  const ideal& generators = min_Ix();
  known_.strands.linres[0] = points::linid(generators, bu_mo(), Can_Lf(), *to_, act);
  if (counts == numbers::count) known_.strands.linid = true;
}

void scheme::linom(const level_visitor& visit, numbers counts) {
  const presentation& w_R = omega();
  known_.strands.linres[1] = points::linom(w_R, bu_mo(), Can_Lf(), *to_, visit);
  if (counts == numbers::count) known_.strands.linom = true;
}

}  // namespace zep::points
