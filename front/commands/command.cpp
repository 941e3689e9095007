#include "front/commands/command.h"

#include <array>
#include <iostream>
#include <string_view>

#include "base/output.h"
#include "base/reporter.h"
#include "front/commands/point_entry.h"
#include "front/commands/random_points.h"
#include "front/commands/result_files.h"
#include "front/commands/settings.h"
#include "front/commands/strand_files.h"
#include "points/ideal/gorenstein.h"
#include "points/ideal/minimal_generators.h"
#include "points/ideal/socle.h"
#include "points/module/canonical_module.h"
#include "points/strand/linid.h"
#include "points/strand/linom.h"
#include "points/walk/beta_matrix.h"
#include "points/walk/buchberger_moeller.h"
#include "points/walk/general_position.h"
#include "points/walk/invariants.h"
#include "points/walk/separators.h"
#include "points/walk/uniformity.h"

namespace zep::front {

namespace {

constexpr auto none = command_kind::nothing;
constexpr auto any = command_kind::any_identifier;
constexpr auto point_set = command_kind::scheme_identifier;

// Actions made from the functions that do the work.

template <void (*display)(std::ostream&, scheme&)>
void show(session& z, int identifier) {
  display(std::cout, z.var.object(identifier));
}

template <void (*change)(session&)>
void with_session(session& z, int /*identifier*/) {
  change(z);
}

template <void (*print)()>
void alone(session& /*z*/, int /*identifier*/) {
  print();
}

template <int value>
void set_verbose(session& /*z*/, int /*identifier*/) {
  verbose = value;
}

template <bool full>
void list_identifiers(session& z, int /*identifier*/) {
  z.var.list_all(full);
}

void run_bumo(session& z, int identifier) { need_bu_mo(z.var.object(identifier)); }

void show_linid(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  linid(X);
  disp_linid(std::cout, X);
}

void show_linom(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  linom(X);
  disp_linom(std::cout, X);
}

void show_linres(session& z, int identifier) {
  scheme& X = z.var.object(identifier);
  linid(X);
  linom(X);
  disp_linres(std::cout, X);
}

// What is no number counts as one that the test refuses.
void test_n_uniformity(session& z, int identifier) {
  const int n = z.typed.integer_or(0);
  is_n_uf(std::cout, z.var.object(identifier), n);
}

void delete_identifier(session& z, int identifier) { z.var.del(identifier, false); }

void delete_all_identifiers(session& z, int /*identifier*/) { z.var.del_all(false); }

void display_identifier(session& z, int identifier) { z.var.display(identifier, true); }

void leave(session& z, int /*identifier*/) { z.quit = true; }

constexpr auto table = std::to_array<command_record>({
    {"alpha", point_set, "A", "the least degree of a form that vanishes on A", show<alpha_X>},
    {"betamat", point_set, "A",
     "the beta matrix of A: leading forms of separators in a basis of some of them",
     show<disp_beta_matrix>},
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
     show<delta_X>},
    {"deltafn", point_set, "A", "the difference function of the Hilbert function of A",
     show<delta_fct>},
    {"dim", none, "N", "makes P^N the space; deletes all point sets", with_session<set_dim>},
    {"display", any, "A", "A and, in short, the results that exist for it; A alone does the same",
     display_identifier},
    {"display_all", none, "", "all point sets with what display shows of them",
     list_identifiers<true>},
    {"exit", none, "", "leaves, as quit does", leave},
    {"gbasis", point_set, "A", "the reduced Groebner basis of the vanishing ideal of A",
     show<groebner>},
    {"gencycl", none, "", "not in this program", alone<cyclotom>},
    {"get", none, "A N",
     "reads N points, each with all its coordinates, the homogenising one first and not 0",
     with_session<get_scheme>},
    {"help", none, "", "the names of all commands", alone<help>},
    {"hilbertfn", point_set, "A", "the Hilbert function of A", show<hilb_fct>},
    {"identifiers", none, "NAMES", "renames the variables, one character each",
     with_session<identifiers>},
    {"is_cb", point_set, "A", "whether A has the Cayley-Bacharach property", show<is_CB>},
    {"is_duf", point_set, "A",
     "whether any delta of the separators of A are independent in top degree", show<is_delta_uf>},
    {"is_gor", point_set, "A", "whether A is arithmetically Gorenstein", show<is_ar_Go>},
    {"is_uf", point_set, "A N",
     "whether any N of the separators of A are independent in top degree", test_n_uniformity},
    {"lingenpos", point_set, "A", "whether some min(s, n + 1) of the s points of A are independent",
     show<lingenpos>},
    {"linid", point_set, "A",
     "the linear strand of the resolution of the vanishing ideal, in numbers", show_linid},
    {"linom", point_set, "A",
     "the linear strand of the resolution of the canonical module, in numbers", show_linom},
    {"linomsyz", point_set, "A",
     "the linear relations among the generators of least degree of that module", show<linomsyz>},
    {"linres", point_set, "A", "both linear strands in one table", show_linres},
    {"linsyz", point_set, "A", "the linear syzygies of the vanishing ideal, level by level",
     show<linsyz>},
    {"list", none, "", "the names of all point sets", list_identifiers<false>},
    {"min", point_set, "A", "minimal generators of the homogeneous vanishing ideal",
     show<disp_min>},
    {"mindegs", point_set, "A", "the degrees of the minimal generators", show<deg_min>},
    {"omega", point_set, "A", "the minimal presentation of the canonical module: ranks and degrees",
     show<disp_omega>},
    {"omegamat", point_set, "A", "the same: its matrix and its generators", show<disp_omegamat>},
    {"orderideal", point_set, "A", "the monomials outside the leading ideal", show<order_ideal>},
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
    {"quiet", none, "", "keeps reports of progress back", set_verbose<0>},
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
     show<separators>},
    {"sigma", point_set, "A",
     "one less than the first degree in which the Hilbert function is the number of points",
     show<sigma_X>},
    {"socle", point_set, "A", "the socle of the Artinian reduction", show<disp_socle>},
    {"type", point_set, "A", "the number of generators of the socle", show<typ>},
    {"verbose", none, "", "reports the progress of long computations on standard error",
     set_verbose<1>},
    {"write", point_set, "A FILE", "writes what display shows, but for the order ideal", write},
    {"writelinid", point_set, "A FILE", "writes the table of linid as it is", writelinid},
    {"writelinom", point_set, "A FILE", "writes the table of linom as it is", writelinom},
    {"writelinres", point_set, "A FILE", "writes the table of linres as it is", writelinres},
});

}  // namespace

constinit const std::span<const command_record> command = table;

int find_command(const std::string& name) {
  for (int c = 0; c < no_of_commands(); ++c) {
    if (name == command[c].name) return c;
  }
  return -1;
}

void help() {
  constexpr int column_width = 13;
  const int columns = LL / column_width;
  std::cout << "list of commands in alphabetical order :";
  for (int c = 0; c < no_of_commands(); ++c) {
    const std::string_view name = command[c].name;
    if (c % columns == 0) std::cout << "\n";
    std::cout << name << std::string(column_width - name.size(), ' ');
  }
  std::cout << "\n" << Line;
}

}  // namespace zep::front
