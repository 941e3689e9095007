// SPDX-License-Identifier: GPL-3.0-or-later

#include "front/commands/command.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>

#include "base/output.h"
#include "front/commands/point_entry.h"
#include "front/commands/random_points.h"
#include "front/commands/result_files.h"
#include "front/commands/settings.h"
#include "front/commands/strand_files.h"
#include "text/canonical_module.h"
#include "text/generators.h"
#include "text/invariants.h"
#include "text/points.h"
#include "text/strand_text.h"
#include "text/strands.h"
#include "text/uniformity.h"

namespace zep::front {

namespace {

constexpr auto none = command_kind::nothing;
constexpr auto any = command_kind::any_identifier;
constexpr auto point_set = command_kind::scheme_identifier;

// Actions made from the functions that do the work.

// Makes a result and prints it.
template <auto make, auto print>
void show(const invocation& todo) {
  const auto& result = (todo.X().*make)();
  print(std::cout, result);
}

template <void (*print)(std::ostream&, const hilbert_numbers&)>
void show_number(const invocation& todo) {
  print(std::cout, todo.X().bu_mo().H);
}

template <void (*change)(session&)>
void with_session(const invocation& todo) {
  change(todo.z);
}

template <void (*print)()>
void alone(const invocation& /*todo*/) {
  print();
}

template <bool verbose>
void set_verbose(const invocation& todo) {
  todo.z.shared.report.be_verbose(verbose);
}

template <bool full>
void list_identifiers(const invocation& todo) {
  todo.z.shared.var.list_all(full);
}

void run_bumo(const invocation& todo) { todo.X().bu_mo(); }

// The separators count as asked for from then on.
void show_separators(const invocation& todo) {
  todo.X().sep();
  text::separators(std::cout, todo.X().bu_mo());
}

void show_general_position(const invocation& todo) { text::lingenpos(std::cout, todo.X().P()); }

void show_linid(const invocation& todo) {
  todo.X().linid();
  text::disp_linid(std::cout, todo.X().known());
}

void show_linom(const invocation& todo) {
  todo.X().linom();
  text::disp_linom(std::cout, todo.X().known());
}

void show_linres(const invocation& todo) {
  todo.X().linid();
  todo.X().linom();
  text::disp_linres(std::cout, todo.X().known());
}

void show_linsyz(const invocation& todo) {
  const auto show_syzygies = [](int level, const form_vectors& vectors) {
    if (level > 0) text::show_vectors(std::cout, vectors);
  };
  todo.X().linid(show_syzygies, scheme::numbers::stay);
}

void show_linomsyz(const invocation& todo) {
  const auto show_relations = [](int /*level*/, const form_vectors& vectors) {
    text::show_vectors(std::cout, vectors);
    return false;
  };
  todo.X().linom(show_relations, scheme::numbers::stay);
}

void test_delta_uniformity(const invocation& todo) {
  scheme& X = todo.X();
  X.sep();
  const int delta = X.bu_mo().H.delta;
  if (delta == 1) {
    text::is_delta_uf_for_delta_one(std::cout, X.known().is_CB);
  } else {
    const text::dependence found = X.dependent_separators(delta);
    text::is_delta_uf(std::cout, found, todo.z.shared.report.is_verbose());
  }
}

// What is no number counts as one that the test refuses.
void test_n_uniformity(const invocation& todo) {
  const int n = todo.z.typed.integer_or(0);
  if (n <= 0) return text::refuse_n_not_positive(std::cout);
  const int delta = todo.X().bu_mo().H.delta;
  if (n == delta) return test_delta_uniformity(todo);
  if (n > delta) return text::refuse_n_above_delta(std::cout);
  text::is_n_uf(std::cout, todo.X().dependent_separators(n), n);
}

void delete_identifier(const invocation& todo) { identifier_table::del(*todo.named, false); }

void delete_all_identifiers(const invocation& todo) { todo.z.shared.var.del_all(false); }

void display_identifier(const invocation& todo) { identifier_table::display(*todo.named, true); }

void leave(const invocation& todo) { todo.z.quit = true; }

constexpr auto table = std::to_array<command_record>({
    {"alpha", point_set, "A", "the least degree of a form that vanishes on A",
     show_number<text::alpha_X>},
    {"betamat", point_set, "A",
     "the beta matrix of A: leading forms of separators in a basis of some of them",
     show<&scheme::beta_matrix, text::disp_beta_matrix>},
    {"bumo", point_set, "A", "the Buchberger-Moeller algorithm; prints no result", run_bumo},
    {"char", none, "N", "makes F_N the field; deletes all point sets",
     with_session<characteristic>},
    {"cyclotom", none, "", "not in this program", alone<cyclotom>},
    {"cyclotom2", none, "", "not in this program", alone<cyclotom>},
    {"cyclpol", none, "", "not in this program", alone<root>},
    {"deglex", none, "", "orders monomials degree-lexicographically; deletes all point sets",
     with_session<deglex>},
    {"degrevlex", none, "",
     "orders monomials degree-reverse-lexicographically; deletes all point sets",
     with_session<degrevlex>},
    {"del", any, "A", "deletes A", delete_identifier},
    {"del_all", none, "", "deletes all point sets", delete_all_identifiers},
    {"delta", point_set, "A", "the last value of the difference function of A that is not 0",
     show_number<text::delta_X>},
    {"deltafn", point_set, "A", "the difference function of the Hilbert function of A",
     show_number<text::delta_fct>},
    {"dim", none, "N", "makes P^N the space; deletes all point sets", with_session<set_dim>},
    {"display", any, "A", "A and, in short, the results that exist for it; A alone does the same",
     display_identifier},
    {"display_all", none, "", "all point sets with what display shows of them",
     list_identifiers<true>},
    {"exit", none, "", "leaves, as quit does", leave},
    {"gbasis", point_set, "A", "the reduced Groebner basis of the vanishing ideal of A",
     show<&scheme::bu_mo, text::groebner>},
    {"gencycl", none, "", "not in this program", alone<cyclotom>},
    {"get", none, "A N",
     "reads N points, each with all its coordinates, the homogenising one first and not 0",
     with_session<get_scheme>},
    {"help", none, "", "the names of all commands", alone<help>},
    {"hilbertfn", point_set, "A", "the Hilbert function of A", show_number<text::hilb_fct>},
    {"identifiers", none, "NAMES", "renames the variables, one character each",
     with_session<identifiers>},
    {"is_cb", point_set, "A", "whether A has the Cayley-Bacharach property",
     show<&scheme::is_CB, text::is_CB>},
    {"is_duf", point_set, "A",
     "whether any delta of the separators of A are independent in top degree",
     test_delta_uniformity},
    {"is_gor", point_set, "A", "whether A is arithmetically Gorenstein",
     show<&scheme::is_ar_Go, text::is_ar_Go>},
    {"is_uf", point_set, "A N",
     "whether any N of the separators of A are independent in top degree", test_n_uniformity},
    {"lingenpos", point_set, "A", "whether some min(s, n + 1) of the s points of A are independent",
     show_general_position},
    {"linid", point_set, "A",
     "the linear strand of the resolution of the vanishing ideal, in numbers", show_linid},
    {"linom", point_set, "A",
     "the linear strand of the resolution of the canonical module, in numbers", show_linom},
    {"linomsyz", point_set, "A",
     "the linear relations among the generators of least degree of that module", show_linomsyz},
    {"linres", point_set, "A", "both linear strands in one table", show_linres},
    {"linsyz", point_set, "A", "the linear syzygies of the vanishing ideal, level by level",
     show_linsyz},
    {"list", none, "", "the names of all point sets", list_identifiers<false>},
    {"min", point_set, "A", "minimal generators of the homogeneous vanishing ideal",
     show<&scheme::min_Ix, text::disp_min>},
    {"mindegs", point_set, "A", "the degrees of the minimal generators",
     show<&scheme::min_Ix, text::deg_min>},
    {"omega", point_set, "A", "the minimal presentation of the canonical module: ranks and degrees",
     show<&scheme::omega, text::disp_omega>},
    {"omegamat", point_set, "A", "the same: its matrix and its generators",
     show<&scheme::omega, text::disp_omegamat>},
    {"orderideal", point_set, "A", "the monomials outside the leading ideal",
     show<&scheme::bu_mo, text::order_ideal>},
    {"putbeta", point_set, "A FILE", "writes the beta matrix", putbeta},
    {"putgbasis", point_set, "A FILE", "writes the Groebner basis", putGroebner},
    {"putlinid", point_set, "A FILE", "writes the linear strand of the vanishing ideal", putlinid},
    {"putlinom", point_set, "A FILE", "writes the linear strand of the canonical module", putlinom},
    {"putlinomsyz", point_set, "A FILE", "writes what linomsyz shows", putlinomsyz},
    {"putlinres", point_set, "A FILE", "writes both linear strands", putlinres},
    {"putlinsyz", point_set, "A FILE", "writes what linsyz shows", putlinsyz},
    {"putmin", point_set, "A FILE", "writes the minimal generators", putmin},
    {"putomega", point_set, "A FILE", "writes the presentation of the canonical module", putA_d},
    {"putscheme", point_set, "A FILE", "writes the points, as scheme reads them", putscheme},
    {"putsep", point_set, "A FILE", "writes the separators", putsep},
    {"quiet", none, "", "keeps reports of progress back", set_verbose<false>},
    {"quit", none, "", "leaves", leave},
    {"random", none, "A N", "N distinct random points", with_session<random1>},
    {"random2", none, "A N", "N distinct random points, the unit points first",
     with_session<random2>},
    {"range", none, "N", "lets random coordinates lie between 0 and N", with_session<range>},
    {"ring", none, "", "shows dimension, ring and ordering", alone<show_settings>},
    {"root", none, "", "not in this program", alone<root>},
    {"scheme", none, "A FILE", "reads points from a file", with_session<create>},
    {"sep", point_set, "A",
     "the separators of A: for each point a polynomial, 1 there and 0 at the others",
     show_separators},
    {"sigma", point_set, "A",
     "one less than the first degree in which the Hilbert function is the number of points",
     show_number<text::sigma_X>},
    {"socle", point_set, "A", "the socle of the Artinian reduction",
     show<&scheme::socle, text::disp_socle>},
    {"type", point_set, "A", "the number of generators of the socle",
     show<&scheme::socle, text::typ>},
    {"verbose", none, "", "reports the progress of long computations on standard error",
     set_verbose<true>},
    {"write", point_set, "A FILE", "writes what display shows, but for the order ideal", write},
    {"writelinid", point_set, "A FILE", "writes the table of linid as it is", writelinid},
    {"writelinom", point_set, "A FILE", "writes the table of linom as it is", writelinom},
    {"writelinres", point_set, "A FILE", "writes the table of linres as it is", writelinres},
});

}  // namespace

constinit const std::span<const command_record> command = table;

const command_record* find_command(const std::string& name) {
  const auto found = std::find_if(command.begin(), command.end(),
                                  [&](const command_record& c) { return name == c.name; });
  return found == command.end() ? nullptr : &*found;
}

void help() {
  constexpr int column_width = 13;
  constexpr int columns = LL / column_width;
  std::cout << "list of commands in alphabetical order :";
  int column = 0;
  for (const command_record& c : command) {
    const std::string_view name = c.name;
    if (column % columns == 0) std::cout << "\n";
    std::cout << name << std::string(column_width - name.size(), ' ');
    ++column;
  }
  std::cout << "\n" << Line;
}

}  // namespace zep::front
