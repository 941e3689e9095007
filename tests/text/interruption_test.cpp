// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "tests/points/interrupting.h"
#include "text/canonical_module.h"
#include "text/generators.h"
#include "text/invariants.h"
#include "text/points.h"
#include "text/record.h"
#include "text/result_files.h"
#include "text/strand_text.h"
#include "text/strands.h"
#include "text/uniformity.h"

namespace zep::tests {
namespace {

// Makes a result and writes it.
template <auto make, auto print>
void show(std::ostream& out, scheme& X) {
  print(out, (X.*make)());
}

template <void (*print)(std::ostream&, const hilbert_numbers&)>
void show_number(std::ostream& out, scheme& X) {
  print(out, X.bu_mo().H);
}

// Follows a strand and writes its vectors.
template <void (*write)(std::ostream&, const form_vectors&)>
void strand_of_I_X(std::ostream& out, scheme& X) {
  const auto write_level = [&](int, const form_vectors& vectors) { write(out, vectors); };
  X.linid(write_level, scheme::numbers::stay);
}

template <void (*write)(std::ostream&, const form_vectors&)>
void strand_of_w_R(std::ostream& out, scheme& X) {
  const auto write_level = [&](int, const form_vectors& vectors) {
    write(out, vectors);
    return true;
  };
  X.linom(write_level, scheme::numbers::stay);
}

void put_under_heading(std::ostream& out, const form_vectors& vectors) {
  text::put_matrix(out, 1, "I_X", vectors);
}

void separators_of(std::ostream& out, scheme& X) {
  X.sep();
  text::separators(out, X.bu_mo());
}

void put_separators_of(std::ostream& out, scheme& X) {
  X.sep();
  put_separators(out, X.bu_mo());
}

void put_beta_matrix(std::ostream& out, scheme& X) { text::put_matrix(out, X.beta_matrix().beta); }

// Everything that is written of a set, with what has to be computed for it.
const std::vector<named_command>& all_texts() {
  static const std::vector<named_command> texts = {
      {"alpha_X", show_number<alpha_X>},
      {"sigma_X", show_number<sigma_X>},
      {"delta_X", show_number<delta_X>},
      {"hilb_fct", show_number<hilb_fct>},
      {"delta_fct", show_number<delta_fct>},
      {"order_ideal", show<&scheme::bu_mo, text::order_ideal>},
      {"groebner", show<&scheme::bu_mo, groebner>},
      {"separators", separators_of},
      {"is_CB", show<&scheme::is_CB, text::is_CB>},
      {"is_ar_Go", show<&scheme::is_ar_Go, text::is_ar_Go>},
      {"disp_beta_matrix", show<&scheme::beta_matrix, disp_beta_matrix>},
      {"is_delta_uf",
       [](std::ostream& out, scheme& X) {
         is_delta_uf(out, X.dependent_separators(X.bu_mo().H.delta), true);
       }},
      {"is_n_uf",
       [](std::ostream& out, scheme& X) {
         const int n = std::min(2, X.bu_mo().H.delta);
         is_n_uf(out, X.dependent_separators(n), n);
       }},
      {"lingenpos", [](std::ostream& out, scheme& X) { lingenpos(out, X.P()); }},
      {"disp_scheme", [](std::ostream& out, scheme& X) { disp_scheme(out, X.P()); }},
      {"disp_min", show<&scheme::min_Ix, disp_min>},
      {"deg_min", show<&scheme::min_Ix, deg_min>},
      {"disp_socle", show<&scheme::socle, disp_socle>},
      {"typ", show<&scheme::socle, typ>},
      {"disp_omega", show<&scheme::omega, disp_omega>},
      {"disp_omegamat", show<&scheme::omega, disp_omegamat>},
      {"disp_linid",
       [](std::ostream& out, scheme& X) {
         X.linid();
         disp_linid(out, X.known());
       }},
      {"disp_linom",
       [](std::ostream& out, scheme& X) {
         X.linom();
         disp_linom(out, X.known());
       }},
      {"disp_linres",
       [](std::ostream& out, scheme& X) {
         X.linid();
         X.linom();
         disp_linres(out, X.known());
       }},
      {"vectors of I_X", strand_of_I_X<show_vectors>},
      {"vectors of w_R", strand_of_w_R<show_vectors>},
      {"file of the vectors of I_X", strand_of_I_X<put_vectors>},
      {"file of the vectors of w_R", strand_of_w_R<put_vectors>},
      {"matrices", strand_of_I_X<put_under_heading>},
      {"put_points", [](std::ostream& out, scheme& X) { put_points(out, X.P()); }},
      {"put_matrix", put_beta_matrix},
      {"put_separators", put_separators_of},
      {"put_groebner", show<&scheme::bu_mo, put_groebner>},
      {"put_generators", show<&scheme::min_Ix, put_generators>},
      {"put_presentation", show<&scheme::omega, put_presentation>},
      {"display", [](std::ostream& out, scheme& X) { display(out, out, X); }},
  };
  return texts;
}

TEST(TextInterruption, LeavesASetAsItWasWheneverItComes) {
  EXPECT_GT(interrupt_all(all_texts()), 500);
}

// Everything that writes something for each point has a check, and what it needs has one.
TEST(TextInterruption, EndsEveryText) { interrupt_each_at_its_start(all_texts()); }

// Of results that are there already, those texts are ended that grow with the number of points.
TEST(TextInterruption, EndsEveryLongTextOfWhatExists) {
  const ring_in_force ring(101, 3);
  std::mt19937 random(47);
  told_set start(random_points(20, random));
  std::ostringstream dropped;
  for (const named_command& t : all_texts()) t.run(dropped, start.X);
  for (const named_command& t : all_texts()) {
    const std::string name = t.name;
    const bool long_one = name.starts_with("put_") || name.starts_with("file ") ||
                          name.starts_with("vectors ") || name == "matrices" ||
                          name == "groebner" || name == "separators" || name == "disp_min" ||
                          name == "disp_socle" || name == "disp_omegamat" ||
                          name == "disp_scheme" || name == "display";
    if (!long_one) continue;
    SCOPED_TRACE(name);
    EXPECT_TRUE(interrupted_command(start, t).ends_at(0));
  }
}

}  // namespace
}  // namespace zep::tests
