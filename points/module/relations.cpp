// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/module/relations.h"

#include <algorithm>
#include <utility>

#include "base/interrupt.h"

namespace zep::points {

relation without_zeros(const_row_view all) {
  const auto zeros = static_cast<std::size_t>(std::count(all.begin(), all.end(), Fp8(0)));
  // One more than there are, so that an element can be written before it is known to count: zeros
  // and others are mixed, and a branch for each would often be foreseen wrongly.
  const std::size_t size = all.size() - zeros;
  relation terms{std::vector<std::uint32_t>(size + 1), row(size + 1)};
  std::size_t next = 0;
  for (std::size_t i = 0; next < size; ++i) {
    terms.position[next] = static_cast<std::uint32_t>(i);
    terms.coef[next] = all[i];
    next += all[i] == 0 ? 0 : 1;
  }
  terms.position.pop_back();
  terms.coef.pop_back();
  return terms;
}

relations_of_degree relations_of(const std::vector<std::vector<polynomial>>& rows) {
  numbered_monomials numbered;
  const auto for_each_term = [&](const std::vector<polynomial>& entries, auto use) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
      const polynomial& f = entries[i];
      for (int k = 0; sign(f) != 0 && k < f.no_of_monoms(); ++k) {
        use(numbered.number({f.term(k), static_cast<int>(i)}), f.coef(k));
      }
    }
  };
  for (const std::vector<polynomial>& entries : rows) {
    heed_interrupt();
    for_each_term(entries, [](int, Fp8) {});
  }
  relations_of_degree R{numbered.monomials(), {}};
  const std::vector<int> position = sort(R.monomials);
  for (const std::vector<polynomial>& entries : rows) {
    heed_interrupt();
    row all(R.monomials.size());
    for_each_term(entries, [&](int number, Fp8 c) { all[position[number]] = c; });
    R.relations.push_back(without_zeros(all));
  }
  return R;
}

std::vector<polynomial> entries_of(const relations_of_degree& R, int j, int n) {
  std::vector<polynomial> entries(n);
  std::vector<monom> monoms;
  std::vector<Fp8> coefs;
  int component = 0;
  const auto finish = [&] {
    if (monoms.empty()) return;
    entries[component] = polynomial(std::move(monoms), std::move(coefs));
    monoms.clear();
    coefs.clear();
  };
  R.for_each_term(j, [&](const module_monomial& t, Fp8 c) {
    if (t.component != component) {
      finish();
      component = t.component;
    }
    monoms.push_back(t.m);
    coefs.push_back(c);
  });
  finish();
  return entries;
}

}  // namespace zep::points
