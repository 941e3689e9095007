// SPDX-License-Identifier: GPL-3.0-or-later

#include "points/ideal/annihilation.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/interrupt.h"
#include "linalg/combinations.h"
#include "linalg/row_operations.h"
#include "linalg/row_space.h"
#include "linalg/views.h"

namespace zep::points {

namespace {

// The first m members of degree d, as variables take them to degree d + 1; the greatest first.
class multiplication {
 public:
  multiplication(const canonical_forms& R, int d, int m)
      : R_(R),
        last_(R.begin(d) + m - 1),
        m_(m),
        above_(R.begin(d + 1)),
        height_(R.dimension(d + 1)) {}

  int no_of_members() const { return m_; }
  int height() const { return height_; }

  // Those that x_v takes to the border, and those that it takes to other members.
  std::vector<int> to_border(int v) const { return members(v, false); }
  std::vector<int> to_members(int v) const { return members(v, true); }

  // Where x_v takes member c to, over the members of degree d + 1: a member that it takes to
  // another one, and another member.
  int position_of_product(int c, int v) const { return times(c, v).position - above_; }
  const_row_view border_product(int c, int v) const { return R_.form(times(c, v).position); }

  // x_v times these members.
  matrix products(const std::vector<int>& members, int v) const {
    matrix result(height_, static_cast<int>(members.size()));
    for (int i = 0; i < result.rows(); ++i) {
      heed_interrupt();
      if (times(members[i], v).in_O) {
        result[i][position_of_product(members[i], v)] = 1;
      } else {
        const const_row_view form = border_product(members[i], v);
        std::copy(form.begin(), form.end(), result[i].begin());
      }
    }
    return result;
  }

 private:
  canonical_forms::product times(int c, int v) const { return R_.times(last_ - c, v); }

  std::vector<int> members(int v, bool in_O) const {
    std::vector<int> result;
    for (int c = 0; c < m_; ++c) {
      if (times(c, v).in_O == in_O) result.push_back(c);
    }
    return result;
  }

  const canonical_forms& R_;
  int last_;
  int m_;
  int above_;
  int height_;
};

// Let x_v take some members of degree d to members, and others to the border. Where a product of
// the first kind stands, no other member of that kind has anything; so that the coefficient of that
// member follows from those of the other kind, the free ones, if x_v annihilates the form. What
// else is asked of a form is a condition on the free ones only.
class annihilated_forms {
 public:
  annihilated_forms(const multiplication& by, int v)
      : by_(by),
        free_(by.to_border(v)),
        bound_(by.to_members(v)),
        bound_by_free_(static_cast<int>(bound_.size()), static_cast<int>(free_.size())),
        conditions_(static_cast<int>(free_.size())) {
    for (std::size_t i = 0; i < free_.size(); ++i) {
      heed_interrupt();
      const const_row_view product = by.border_product(free_[i], v);
      const row_view bound = bound_by_free_[static_cast<int>(i)];
      for (std::size_t k = 0; k < bound_.size(); ++k) {
        bound[k] = -product[by.position_of_product(bound_[k], v)];
      }
    }
  }

  // Whether only 0 is left.
  bool is_zero() const { return conditions_.rank() == static_cast<int>(free_.size()); }

  // Asks that x_v annihilates the form, too.
  void annihilate_by(int v) {
    matrix products = by_.products(free_, v);
    const matrix of_bound = by_.products(bound_, v);
    add_combinations(views_of(products), bound_by_free_, const_views_of(of_bound));
    conditions_.add_rows(columns_of(products));
  }

  // The equations for all members that say the same: the conditions, and those that bind the other
  // coefficients, in which the conditions replace the free ones at their pivots.
  column_choice equations() const {
    std::vector<row> rows;
    std::vector<std::size_t> pivots;
    for (const row& condition : conditions_.reduced()) {
      rows.push_back(over_all_members(condition));
      pivots.push_back(static_cast<std::size_t>(free_[conditions_.pivots()[pivots.size()]]));
    }
    std::vector<row> by_free = columns_of(bound_by_free_);
    conditions_.reduce(std::vector<row_view>(by_free.begin(), by_free.end()));
    for (std::size_t k = 0; k < bound_.size(); ++k) {
      scale(by_free[k], -Fp8(1));
      rows.push_back(over_all_members(by_free[k]));
      rows.back()[bound_[k]] = 1;
      pivots.push_back(static_cast<std::size_t>(bound_[k]));
    }
    return {by_.no_of_members(), std::move(rows), pivots};
  }

 private:
  // A row over the free members as one over all.
  row over_all_members(const_row_view over_free) const {
    heed_interrupt();
    row all(static_cast<std::size_t>(by_.no_of_members()));
    for (std::size_t k = 0; k < free_.size(); ++k) all[free_[k]] = over_free[k];
    return all;
  }

  static std::vector<row> columns_of(const matrix& a) {
    std::vector<row> columns(static_cast<std::size_t>(a.cols()),
                             row(static_cast<std::size_t>(a.rows())));
    for (int i = 0; i < a.rows(); ++i) {
      heed_interrupt();
      for (int j = 0; j < a.cols(); ++j) columns[j][i] = a[i][j];
    }
    return columns;
  }

  const multiplication& by_;
  std::vector<int> free_;
  std::vector<int> bound_;
  // A row for each free member, with the coefficients of the others.
  matrix bound_by_free_;
  row_space conditions_;
};

}  // namespace

std::optional<column_choice> annihilation(const canonical_forms& R,
                                          const std::vector<int>& variables, int d, int m) {
  const multiplication by(R, d, m);
  const int first = *std::min_element(variables.begin(), variables.end(), [&](int v, int w) {
    return by.to_border(v).size() < by.to_border(w).size();
  });
  annihilated_forms forms(by, first);
  for (const int v : variables) {
    if (forms.is_zero()) return std::nullopt;
    forms.annihilate_by(v);
  }
  if (forms.is_zero()) return std::nullopt;
  return forms.equations();
}

}  // namespace zep::points
