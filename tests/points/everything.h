// Everything that can be done with a scheme, and everything that a scheme has.
#pragma once

#include <algorithm>
#include <array>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "base/output.h"
#include "points/ideal/gorenstein.h"
#include "points/ideal/minimal_generators.h"
#include "points/ideal/socle.h"
#include "points/module/canonical_module.h"
#include "points/record/scheme.h"
#include "points/strand/linid.h"
#include "points/strand/linom.h"
#include "points/walk/beta_matrix.h"
#include "points/walk/buchberger_moeller.h"
#include "points/walk/general_position.h"
#include "points/walk/invariants.h"
#include "points/walk/separators.h"
#include "points/walk/uniformity.h"
#include "tests/points/special_sets.h"
#include "text/record.h"

namespace zep::tests {

struct named_command {
  const char* name;
  void (*run)(std::ostream& out, scheme& X);
};

inline const std::vector<named_command>& all_commands() {
  static const std::vector<named_command> commands = {
      {"bumo", [](std::ostream&, scheme& X) { need_bu_mo(X); }},
      {"alpha", alpha_X},
      {"sigma", sigma_X},
      {"delta", delta_X},
      {"gbasis", groebner},
      {"orderideal", order_ideal},
      {"hilbertfn", hilb_fct},
      {"deltafn", delta_fct},
      {"sep", separators},
      {"is_cb", is_CB},
      {"is_gor", is_ar_Go},
      {"betamat", disp_beta_matrix},
      {"is_duf", is_delta_uf},
      {"is_uf", [](std::ostream& out, scheme& X) { is_n_uf(out, X, 2); }},
      {"lingenpos", lingenpos},
      {"min", disp_min},
      {"mindegs", deg_min},
      {"socle", disp_socle},
      {"type", typ},
      {"omega", disp_omega},
      {"omegamat", disp_omegamat},
      {"linid",
       [](std::ostream& out, scheme& X) {
         linid(X);
         disp_linid(out, X);
       }},
      {"linom",
       [](std::ostream& out, scheme& X) {
         linom(X);
         disp_linom(out, X);
       }},
      {"linres",
       [](std::ostream& out, scheme& X) {
         linid(X);
         linom(X);
         disp_linres(out, X);
       }},
      {"linsyz", linsyz},
      {"linomsyz", linomsyz},
      {"putlinid", putlinid},
      {"putlinom", putlinom},
      {"putlinsyz", putlinsyz},
      {"putlinomsyz", putlinomsyz},
      {"display", [](std::ostream& out, scheme& X) { out << X; }},
  };
  return commands;
}

// Ways to come to a scheme that some things have been computed for.
inline const std::vector<named_command>& histories() {
  static const std::vector<named_command> all = {
      {"nothing", [](std::ostream&, scheme&) {}},
      {"bumo", [](std::ostream&, scheme& X) { need_bu_mo(X); }},
      {"is_gor", is_ar_Go},
      {"betamat and linsyz",
       [](std::ostream& out, scheme& X) {
         disp_beta_matrix(out, X);
         linsyz(out, X);
       }},
      {"everything",
       [](std::ostream& out, scheme& X) {
         for (const named_command& c : all_commands()) c.run(out, X);
       }},
  };
  return all;
}

// Writes all fields of a scheme, so that equal texts mean equal schemes. The multiplication in the
// Artinian reduction is only told by its size, the indices by what they say of their lists.
inline std::string contents(const scheme& X) {
  // Names every field: a new one has to be added.
  const auto& [s, P, has_bu_mo, O, O_index, B, B_index, Ix, separator, hilb_fct, delta_fct, sigma,
               delta, alpha, sep, is_CB, is_ar_Go, beta_matrix, basis, Can_Lf, min_Ix, socle, pr,
               pr_deg, A_d_cols, A_d, A_d_maxdeg, A_d_coldeg, linres, linid, linom] = X;
  std::ostringstream out;
  const int column = counter;
  const auto put_number = [&](int n) { out << n << " "; };
  const auto put_all = [&](const std::vector<int>& numbers) {
    put_number(static_cast<int>(numbers.size()));
    std::for_each(numbers.begin(), numbers.end(), put_number);
    out << "\n";
  };
  const auto put_matrix = [&](const matrix& m) {
    out << m.rows() << " x " << m.cols() << "\n";
    for (int i = 0; i < m.rows(); ++i) {
      for (const Fp8 x : m.row(i)) put_number(x.value());
    }
    out << "\n";
  };
  const auto put_monomials = [&](const std::vector<monom>& list, const monom_index& index) {
    for (const monom& t : list) out << t << " at " << index.find(t) << ", ";
    out << "\n";
  };
  const auto put_ideal = [&](const std::optional<ideal>& I) {
    out << (I ? "ideal " : "no ideal\n");
    if (I) out << *I;
  };
  put_number(s);
  put_matrix(P);
  put_number(static_cast<int>(has_bu_mo));
  put_monomials(O, O_index);
  put_monomials(B, B_index);
  for (int g = 0; Ix && g < Ix->no_of_gens(); ++g) {
    counter = 0;
    out << Ix->gen(g, O) << "\n";
  }
  put_matrix(separator);
  put_all(hilb_fct);
  put_all(delta_fct);
  for (const int n : {sigma, delta, alpha, sep, is_CB, is_ar_Go}) put_number(n);
  if (beta_matrix) put_matrix(*beta_matrix);
  put_all(basis);
  put_number(Can_Lf ? Can_Lf->no_of_border() : -1);
  counter = 0;
  put_ideal(min_Ix);
  put_ideal(socle);
  put_all(pr);
  put_all(pr_deg);
  for (const polynomial& f : A_d) {
    f.put(out);
    out << "\n";
  }
  put_number(A_d_cols);
  put_number(A_d_maxdeg);
  put_all(A_d_coldeg);
  put_all(linres[0]);
  put_all(linres[1]);
  put_number(linid);
  put_number(linom);
  counter = column;
  return out.str();
}

// Calls use(points) for a few sets in several rings, some without meaning.
template <class Use>
void for_each_of_a_few_sets(Use use) {
  const auto use_set = [&](const char* name, const std::vector<coordinates>& points) {
    SCOPED_TRACE(name);
    use(points);
  };
  std::mt19937 random(43);
  {
    const ring_in_force ring(101, 2);
    use_set("no points", {});
    use_set("12 points of the plane", random_points(12, random));
  }
  {
    const ring_in_force ring(31, 3, term_order::deglex);
    use_set("14 points of space", random_points(14, random));
  }
  {
    const ring_in_force ring(5, 4);
    use_set("a normal curve", points_on_curve(4, 5));
  }
  {
    const ring_in_force ring(6, 2);
    std::vector<coordinates> points = random_points(5, random);
    points.push_back(points.front());
    use_set("repeated points over no field", points);
  }
}

}  // namespace zep::tests
