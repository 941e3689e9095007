#include "points/ideal/minimal_generators.h"

#include <algorithm>
#include <ostream>
#include <utility>
#include <vector>

#include "arith/Fp.h"
#include "base/interrupt.h"
#include "base/output.h"
#include "linalg/row_operations.h"
#include "linalg/row_space.h"
#include "points/ideal/artinian_forms.h"
#include "points/record/consistency.h"

namespace zep::points {

namespace {

// The border form of a border monomial t is t - c, where c is its canonical form in R/(X_0), the
// combination of members of O that it equals there.

// Two border monomials P * x_a and P * x_b, divisible by the leading monomials of two Groebner
// basis elements; P, the member of O at this position, times x_a * x_b is their least common
// multiple.
struct neighbours {
  int position;
  int a;
  int b;
};

// The last slot in which s has the larger exponent, or -1.
int last_larger_slot(const monom& s, const monom& t) {
  int slot = -1;
  for (int i = 0; i < s.dim(); ++i) {
    if (s.exp(i) > t.exp(i)) slot = i;
  }
  return slot;
}

std::vector<neighbours> neighbour_pairs(const scheme& X) {
  std::vector<neighbours> pairs;
  const int n = X.Ix->no_of_gens();
  for (int i = 0; i < n; ++i) {
    heed_interrupt();
    const monom& s = X.Ix->lead(i);
    for (int j = i + 1; j < n; ++j) {
      const monom& t = X.Ix->lead(j);
      monom P = lcm(s, t);
      const int a = last_larger_slot(s, t);
      const int b = last_larger_slot(t, s);
      if (a < 0 || b < 0 || P.tot_deg() - 2 > X.sigma + 1) continue;
      P.set_exp(a, P.exp(a) - 1);
      P.set_exp(b, P.exp(b) - 1);
      const int position = is_el_OO(X, P);
      if (position >= 0) pairs.push_back({position, a, b});
    }
  }
  return pairs;
}

// The constants with which the Groebner basis elements occur in things of the vanishing ideal. In a
// thing of degree d only elements of degree d can, so it has a row over these, which stand
// together:
//
//     row[i]  is the constant of basis element  begin(d) + i,   0 <= i < size(d)
class constants_of_relations {
 public:
  explicit constants_of_relations(const scheme& X) : X_(X), forms_(*X.Can_Lf) {
    int g = 0;
    for (int d = 0; d <= degrees(); ++d) {
      begin_.push_back(g);
      while (g < X.Ix->no_of_gens() && X.Ix->lead(g).tot_deg() == d) ++g;
    }
    of_border_.reserve(X.B.size());
    for (int b = 0; b < no_of_border(X); ++b) {
      heed_interrupt();
      of_border_.push_back(border_row(b));
    }
  }

  // Every degree is smaller: members of O reach degree sigma + 1, relations two more.
  int degrees() const { return X_.sigma + 4; }

  int begin(int d) const { return begin_[d]; }
  int size(int d) const { return begin(d + 1) - begin(d); }

  // The degree of x_b * (border form of P x_a) - x_a * (border form of P x_b).
  int degree(const neighbours& pair) const { return X_.O[pair.position].tot_deg() + 2; }

  // The constants in that relation. The border forms' own monomials cancel, and what is left is
  // made of canonical forms.
  std::vector<Fp8> relation(const neighbours& pair) const {
    std::vector<Fp8> row(size(degree(pair)));
    add_products(row, forms_.times(pair.position, pair.a).position, pair.b, Fp8(1));
    add_products(row, forms_.times(pair.position, pair.b).position, pair.a, -Fp8(1));
    return row;
  }

 private:
  // The constants in the border form B[b] - Can_Lf(B[b]), written with basis elements.
  std::vector<Fp8> border_row(int b) const {
    const monom& t = X_.B[b];
    const int d = t.tot_deg();
    std::vector<Fp8> row(size(d));
    if (const int g = is_el_G(X_, t); g >= 0) {
      row[g - begin(d)] = 1;
    } else if (const auto [border, variable] = forms_.origin_of(b); border >= 0) {
      add_products(row, border, variable, Fp8(1));
    }
    return row;
  }

  // Adds c times the constants of the border monomials in x_v * Can_Lf(B[b]).
  void add_products(std::vector<Fp8>& row, int b, int v, Fp8 c) const {
    if (row.empty()) return;
    const int d = X_.B[b].tot_deg();
    forms_.for_each_product(forms_.form(b), d, v, [&](Fp8 coef, canonical_forms::product p) {
      if (!p.in_O) axpy(row.data(), of_border_[p.position].data(), c * coef, row.size());
    });
  }

  const scheme& X_;
  const canonical_forms& forms_;
  // First basis element of each degree, with one entry behind the last degree that ends it.
  std::vector<int> begin_;
  std::vector<std::vector<Fp8>> of_border_;
};

// The relations' constants, one row for each pair of neighbours, but dependent rows left out.
matrix relation_matrix(const scheme& X, const std::vector<neighbours>& pairs) {
  const constants_of_relations constants(X);
  const int degrees = constants.degrees();
  std::vector<row_space> relations;
  relations.reserve(degrees);
  for (int d = 0; d < degrees; ++d) relations.emplace_back(constants.size(d));
  for (const neighbours& pair : pairs) {
    relations[constants.degree(pair)].add(constants.relation(pair));
  }
  int rank = 0;
  for (const row_space& of_degree : relations) rank += of_degree.rank();
  matrix N(X.Ix->no_of_gens(), rank);
  int row = 0;
  for (int d = 0; d < degrees; ++d) {
    const matrix basis = relations[d].basis();
    for (int i = 0; i < basis.rows(); ++i) {
      std::copy(basis.row(i).begin(), basis.row(i).end(), N[row++] + constants.begin(d));
    }
  }
  return N;
}

// The basis elements that make a minimal system, ascending by degree; of equal degrees those come
// first that stand first, but each choice moves the last candidate into the place of the chosen.
std::vector<int> minimal_elements(const scheme& X) {
  const int n = X.Ix->no_of_gens();
  const std::vector<neighbours> pairs = neighbour_pairs(X);
  matrix N = relation_matrix(X, pairs);
  std::vector<int> columns = identity_order(n);
  std::vector<int> rows = identity_order(N.rows());
  // Dependent rows are not there, but they count: the number of steps decides which columns are
  // still exchanged when the pivots are found, and so in which order the generators come.
  const int d = N.solve(columns, rows, std::min(n, static_cast<int>(pairs.size())));
  std::vector<int> candidates(columns.end() - d, columns.end());
  std::vector<int> chosen;
  while (!candidates.empty()) {
    heed_interrupt();
    const auto least = std::min_element(candidates.begin(), candidates.end(), [&](int g, int h) {
      return X.Ix->lead(g).tot_deg() < X.Ix->lead(h).tot_deg();
    });
    chosen.push_back(*least);
    *least = candidates.back();
    candidates.pop_back();
  }
  return chosen;
}

}  // namespace

void min_Ix(scheme& X) {
  if (X.min_Ix) return;
  need_Can_Lf(X);
  const std::vector<int> chosen = minimal_elements(X);
  ideal generators(static_cast<int>(chosen.size()));
  for (std::size_t m = 0; m < chosen.size(); ++m) {
    heed_interrupt();
    hom(generators.gen[m], groebner_element(X, chosen[m]));
  }
  X.min_Ix = std::move(generators);
  ensure_consistent(X);
}

void disp_min(std::ostream& out, scheme& X) {
  min_Ix(X);
  out << "a minimal basis for the projective vanishing ideal consists of the following\n"
      << X.min_Ix->no_of_gens() << " polynomials :\n";
  int m = 0;
  for (const polynomial& f : X.min_Ix->gen) {
    heed_interrupt();
    counter = len(++m) + 6;
    out << "min" << m << " = " << f << "\n";
  }
  out << Line;
}

void deg_min(std::ostream& out, scheme& X) {
  min_Ix(X);
  out << "the degrees of the minimal generators of the projective vanishing ideal are:\n";
  const std::vector<polynomial>& gen = X.min_Ix->gen;
  const auto degree = [](const polynomial& f) { return f.term(0).tot_deg(); };
  for (auto group = gen.begin(); group != gen.end();) {
    const auto next = std::find_if(
        group, gen.end(), [&](const polynomial& f) { return degree(f) != degree(*group); });
    out << "deg " << degree(*group) << " : " << next - group << " generator(s)\n";
    group = next;
  }
  out << Line;
}

}  // namespace zep::points
