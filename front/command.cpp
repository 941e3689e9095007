#include "front/command.h"

#include <iostream>
#include <string_view>

#include "arith/index.h"
#include "arith/output.h"
#include "front/error.h"
#include "front/point_entry.h"
#include "front/random_points.h"
#include "front/result_files.h"
#include "front/settings.h"
#include "front/strand_files.h"
#include "scheme/beta_matrix.h"
#include "scheme/bu_mo.h"
#include "scheme/general_position.h"
#include "scheme/gorenstein.h"
#include "scheme/invariants.h"
#include "scheme/linid.h"
#include "scheme/linom.h"
#include "scheme/min_Ix.h"
#include "scheme/omega.h"
#include "scheme/progress.h"
#include "scheme/separators.h"
#include "scheme/socle.h"
#include "scheme/uniformity.h"

namespace zep {

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

}  // namespace

const std::array<command_record, no_of_commands> command = {{
    {"alpha", point_set, show<alpha_X>},
    {"betamat", point_set, show<disp_beta_matrix>},
    {"bumo", point_set, run_bumo},
    {"char", none, with_session<characteristic>},
    {"cyclotom", none, alone<cyclotom>},
    {"cyclotom2", none, alone<cyclotom>},
    {"cyclpol", none, alone<root>},
    {"deglex", none, with_session<deglex>},
    {"degrevlex", none, with_session<degrevlex>},
    {"del", any, delete_identifier},
    {"del_all", none, delete_all_identifiers},
    {"delta", point_set, show<delta_X>},
    {"deltafn", point_set, show<delta_fct>},
    {"dim", none, with_session<set_dim>},
    {"display", any, display_identifier},
    {"display_all", none, list_identifiers<true>},
    {"exit", none, leave},
    {"gbasis", point_set, show<groebner>},
    {"gencycl", none, alone<cyclotom>},
    {"get", none, with_session<get_scheme>},
    {"help", none, alone<help>},
    {"hilbertfn", point_set, show<hilb_fct>},
    {"identifiers", none, with_session<identifiers>},
    {"is_cb", point_set, show<is_CB>},
    {"is_duf", point_set, show<is_delta_uf>},
    {"is_gor", point_set, show<is_ar_Go>},
    {"is_uf", point_set, test_n_uniformity},
    {"lingenpos", point_set, show<lingenpos>},
    {"linid", point_set, show_linid},
    {"linom", point_set, show_linom},
    {"linomsyz", point_set, show<linomsyz>},
    {"linres", point_set, show_linres},
    {"linsyz", point_set, show<linsyz>},
    {"list", none, list_identifiers<false>},
    {"min", point_set, show<disp_min>},
    {"mindegs", point_set, show<deg_min>},
    {"omega", point_set, show<disp_omega>},
    {"omegamat", point_set, show<disp_omegamat>},
    {"orderideal", point_set, show<order_ideal>},
    {"putbeta", point_set, putbeta},
    {"putgbasis", point_set, putGroebner},
    {"putlinid", point_set, putlinid},
    {"putlinom", point_set, putlinom},
    {"putlinomsyz", point_set, putlinomsyz},
    {"putlinres", point_set, putlinres},
    {"putlinsyz", point_set, putlinsyz},
    {"putmin", point_set, putmin},
    {"putomega", point_set, putA_d},
    {"putscheme", point_set, putscheme},
    {"putsep", point_set, putsep},
    {"quiet", none, set_verbose<0>},
    {"quit", none, leave},
    {"random", none, with_session<random1>},
    {"random2", none, with_session<random2>},
    {"range", none, with_session<range>},
    {"ring", none, alone<show_settings>},
    {"root", none, alone<root>},
    {"scheme", none, with_session<create>},
    {"sep", point_set, show<separators>},
    {"sigma", point_set, show<sigma_X>},
    {"socle", point_set, show<disp_socle>},
    {"type", point_set, show<typ>},
    {"verbose", none, set_verbose<1>},
    {"write", point_set, write},
    {"writelinid", point_set, writelinid},
    {"writelinom", point_set, writelinom},
    {"writelinres", point_set, writelinres},
}};

namespace {

// Reports an identifier that the command can't work with.
bool accepts(const session& z, command_kind kind, int identifier) {
  if (kind == command_kind::nothing) return true;
  if (identifier == unknown_identifier) {
    error(error_code::unknown_identifier);
    return false;
  }
  if (identifier == no_identifier) {
    error(error_code::needs_identifier);
    return false;
  }
  if (kind == command_kind::scheme_identifier && z.var.type(identifier) != scheme_type) {
    error(error_code::wrong_type);
    return false;
  }
  return true;
}

}  // namespace

int find_command(const std::string& name) {
  for (int c = 0; c < no_of_commands; ++c) {
    if (name == command[at(c)].name) return c;
  }
  return -1;
}

void execute(session& z, int c, int identifier) {
  if (c < 0 || c >= no_of_commands) return;
  const command_record& todo = command[at(c)];
  if (!accepts(z, todo.kind, identifier)) return;
  todo.action(z, identifier);
}

void help() {
  constexpr int column_width = 13;
  const int columns = LL / column_width;
  std::cout << "list of commands in alphabetical order :";
  for (int c = 0; c < no_of_commands; ++c) {
    const std::string_view name = command[at(c)].name;
    if (c % columns == 0) std::cout << "\n";
    std::cout << name << std::string(column_width - name.size(), ' ');
  }
  std::cout << "\n" << Line;
}

}  // namespace zep
