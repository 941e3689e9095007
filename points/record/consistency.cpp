#include "points/record/consistency.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

#include "arith/ordering.h"
#include "arith/ring.h"
#include "base/paranoid.h"

namespace zep::points {

namespace {

bool is_prime(int p) {
  for (int d = 2; d * d <= p; ++d) {
    if (p % d == 0) return false;
  }
  return true;
}

// O without the monomials 1 that only fill it up.
std::vector<monom> members(const scheme& X) {
  const auto second_one = std::find_if(X.O.begin() + std::min(X.s, 1), X.O.end(),
                                       [](const monom& t) { return t.tot_deg() == 0; });
  return {X.O.begin(), second_one};
}

// Results mean something for distinct points over a field; then O is full.
bool is_meaningful(const scheme& X) {
  return is_prime(Fp8::prime) && static_cast<int>(members(X).size()) == X.s;
}

bool ascends(const std::vector<monom>& monomials) {
  return std::adjacent_find(monomials.begin(), monomials.end(), [](const monom& a, const monom& b) {
           return !(a < b);
         }) == monomials.end();
}

bool is_closed_under_division(const scheme& X, const std::vector<monom>& O) {
  return std::all_of(O.begin(), O.end(), [&](const monom& t) {
    for (int v = 0; v < dim; ++v) {
      if (t.exp(v) > 0 && is_el_OO(X, t / variable(v)) < 0) return false;
    }
    return true;
  });
}

// The border monomials are the products of members with variables that are no members.
bool is_border(const scheme& X, const std::vector<monom>& O) {
  std::size_t reached = 0;
  std::vector<bool> seen(X.B.size());
  for (const monom& t : O) {
    for (int v = 0; v < dim; ++v) {
      if (is_el_OO(X, t * variable(v)) >= 0) continue;
      const int b = is_el_B(X, t * variable(v));
      if (b < 0) return false;
      if (!seen[b]) ++reached;
      seen[b] = true;
    }
  }
  return reached == X.B.size();
}

// The separators are the values of the polynomial 1 at the points, put together again.
bool add_up_to_one(const matrix& separators) {
  std::vector<Fp8> sum(separators.cols());
  for (int i = 0; i < separators.rows(); ++i) {
    for (int j = 0; j < separators.cols(); ++j) sum[j] += separators[i][j];
  }
  return sum.empty() || (sum.front() == 1 &&
                         std::all_of(sum.begin() + 1, sum.end(), [](Fp8 c) { return c == 0; }));
}

// Each element leads with a border monomial and has its tail below it.
bool is_reduced(const scheme& X) {
  for (int g = 0; g < X.Ix->no_of_gens(); ++g) {
    const std::span<const Fp8> tail = X.Ix->tail(g);
    if (is_el_B(X, X.Ix->lead(g)) < 0) return false;
    if (!tail.empty() && !(X.O[tail.size() - 1] < X.Ix->lead(g))) return false;
  }
  return true;
}

void ensure_bu_mo(const scheme& X) {
  ensure("O has one member for each point", [&] { return std::ssize(X.O) == X.s; });
  const std::vector<monom> O = members(X);
  ensure("O and its border ascend", [&] { return ascends(O) && ascends(X.B); });
  ensure("O is closed under division", [&] { return is_closed_under_division(X, O); });
  ensure("the border is that of O", [&] { return X.s == 0 || is_border(X, O); });
  ensure("the Groebner basis is reduced", [&] { return is_reduced(X); });
  ensure("there is one separator for each point", [&] { return X.separator.rows() == X.s; });
  ensure("the separators add up to 1",
         [&] { return !is_meaningful(X) || add_up_to_one(X.separator); });
}

void ensure_presentation(const scheme& X) {
  const auto total = [](const std::vector<int>& counts) {
    return std::accumulate(counts.begin(), counts.end(), 0);
  };
  ensure("the generators ascend", [&] { return std::is_sorted(X.pr.begin(), X.pr.end()); });
  ensure("the generators are counted by degree",
         [&] { return X.pr_deg.empty() || total(X.pr_deg) == no_of_pr(X); });
  ensure("the relations are counted by degree",
         [&] { return X.A_d_coldeg.empty() || total(X.A_d_coldeg) == X.A_d_cols; });
  ensure("there is an entry for each generator and relation",
         [&] { return X.A_d.size() == X.pr.size() * X.A_d_cols; });
}

}  // namespace

void ensure_consistent(const scheme& X) {
  if constexpr (!paranoid) return;
  ensure("there is one row for each point", [&] { return X.P.rows() == X.s; });
  ensure("H and its difference function have s entries",
         [&] { return std::ssize(X.hilb_fct) == X.s && std::ssize(X.delta_fct) == X.s; });
  ensure("nothing comes before the Buchberger-Moeller algorithm", [&] {
    return X.has_bu_mo ||
           (X.sep == 0 && !X.beta_matrix && !X.Can_Lf && X.pr.empty() && X.linid == 0);
  });
  if (X.has_bu_mo) ensure_bu_mo(X);
  ensure("the beta matrix comes after the separators",
         [&] { return !X.beta_matrix || (X.sep == 1 && std::ssize(X.basis) == X.delta); });
  ensure("generators and socle come after the canonical forms",
         [&] { return (!X.min_Ix && !X.socle) || X.Can_Lf; });
  ensure_presentation(X);
  ensure("the rows of linear strands have an entry for each variable",
         [&] { return std::ssize(X.linres[0]) == dim && std::ssize(X.linres[1]) == dim; });
}

}  // namespace zep::points
