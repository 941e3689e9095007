// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that can be computed for a set of points, and everything that can be known of one.
#pragma once

#include <algorithm>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "points/record/scheme.h"
#include "tests/points/special_sets.h"

namespace zep::tests {

// Something that is done with a set, and that may write.
struct named_command {
  const char* name;
  void (*run)(std::ostream& out, scheme& X);
};

// Writes the vectors of a level, short ones.
inline void put_level(std::ostream& out, int level, const form_vectors& vectors) {
  out << "level " << level << ": " << vectors.no_of_nonzero() << " of " << vectors.count() << "\n";
}

// All that a scheme computes. What it does not keep is written.
inline const std::vector<named_command>& all_computations() {
  static const std::vector<named_command> computations = {
      {"bu_mo", [](std::ostream&, scheme& X) { X.bu_mo(); }},
      {"sep", [](std::ostream&, scheme& X) { X.sep(); }},
      {"beta_matrix", [](std::ostream&, scheme& X) { X.beta_matrix(); }},
      {"Can_Lf", [](std::ostream&, scheme& X) { X.Can_Lf(); }},
      {"min_Ix", [](std::ostream&, scheme& X) { X.min_Ix(); }},
      {"socle", [](std::ostream&, scheme& X) { X.socle(); }},
      {"omega", [](std::ostream&, scheme& X) { X.omega(); }},
      {"is_CB", [](std::ostream& out, scheme& X) { out << X.is_CB(); }},
      {"is_ar_Go", [](std::ostream& out, scheme& X) { out << X.is_ar_Go(); }},
      {"dependent_separators",
       [](std::ostream& out, scheme& X) {
         const int delta = X.bu_mo().H.delta;
         for (const int k : {std::min(2, delta), delta}) {
           const auto dependent = X.dependent_separators(k);
           out << (dependent ? "dependent:" : "independent");
           if (!dependent) continue;
           for (const int i : *dependent) out << " " << i;
         }
       }},
      {"linid", [](std::ostream&, scheme& X) { X.linid(); }},
      {"linom", [](std::ostream&, scheme& X) { X.linom(); }},
      {"linid and linom",
       [](std::ostream&, scheme& X) {
         X.linid();
         X.linom();
       }},
      {"linid level by level",
       [](std::ostream& out, scheme& X) {
         const auto put = [&](int level, const form_vectors& vectors) {
           put_level(out, level, vectors);
         };
         X.linid(put, scheme::numbers::stay);
       }},
      {"linom level by level",
       [](std::ostream& out, scheme& X) {
         const auto put = [&](int level, const form_vectors& vectors) {
           put_level(out, level, vectors);
           return true;
         };
         X.linom(put, scheme::numbers::count);
       }},
      {"linom up to the relations",
       [](std::ostream& out, scheme& X) {
         const auto put = [&](int level, const form_vectors& vectors) {
           put_level(out, level, vectors);
           return false;
         };
         X.linom(put, scheme::numbers::stay);
       }},
  };
  return computations;
}

// Ways to come to a scheme that some things have been computed for.
inline const std::vector<named_command>& histories() {
  static const std::vector<named_command> all = {
      {"nothing", [](std::ostream&, scheme&) {}},
      {"bu_mo", [](std::ostream&, scheme& X) { X.bu_mo(); }},
      {"is_ar_Go", [](std::ostream&, scheme& X) { X.is_ar_Go(); }},
      {"beta_matrix and linid level by level",
       [](std::ostream&, scheme& X) {
         X.beta_matrix();
         X.linid([](int, const form_vectors&) {}, scheme::numbers::stay);
       }},
      {"everything",
       [](std::ostream& out, scheme& X) {
         for (const named_command& c : all_computations()) c.run(out, X);
       }},
  };
  return all;
}

// Writes contents, so that equal texts mean equal contents.
class contents_text {
 public:
  void put(int n) { out_ << n << " "; }
  void put(const std::vector<int>& numbers) {
    put(static_cast<int>(numbers.size()));
    for (const int n : numbers) put(n);
    out_ << "\n";
  }
  void put(const_row_view row) {
    for (const Fp8 x : row) put(x.value());
    out_ << "\n";
  }
  void put(const matrix& m) {
    out_ << m.rows() << " x " << m.cols() << "\n";
    for (int i = 0; i < m.rows(); ++i) put(m[i]);
  }
  void put(const std::vector<monom>& list) {
    for (const monom& t : list) out_ << t << " of " << t.dim() << ", ";
    out_ << "\n";
  }
  // The index by what it says of its list.
  void put(const std::vector<monom>& list, const monom_index& index) {
    put(list);
    for (const monom& t : list) put(index.find(t));
    out_ << "\n";
  }
  void put(const std::vector<polynomial>& list) {
    put(static_cast<int>(list.size()));
    for (const polynomial& f : list) {
      f.put(out_);
      out_ << "\n";
    }
  }
  void put(const points::order_ideal& X) {
    // These and those below name every field: a new one has to be added.
    const auto& [O, O_index, B, B_index, Ix, separator, H] = X;
    const auto& [hilb_fct, delta_fct, sigma, delta, alpha] = H;
    put(O, O_index);
    put(B, B_index);
    for (int g = 0; g < Ix.no_of_gens(); ++g) {
      put(std::vector<monom>{Ix.lead(g)});
      put(Ix.tail(g));
      put(Ix.find(Ix.lead(g)));
    }
    put(separator);
    put(hilb_fct);
    put(delta_fct);
    for (const int n : {sigma, delta, alpha}) put(n);
  }
  void put(const verdicts& found) {
    const auto& [is_CB, is_ar_Go] = found;
    put(static_cast<int>(is_CB));
    put(is_ar_Go ? static_cast<int>(*is_ar_Go) : -1);
  }
  void put(const leading_forms& forms) {
    const auto& [beta, basis] = forms;
    put(beta);
    put(basis);
  }
  // The multiplication: every product and every form.
  void put(const canonical_forms& forms) {
    for (int d = 0; d <= forms.top_degree() + 1; ++d) put(forms.begin(d));
    for (int i = 0; i < forms.no_of_members(); ++i) {
      for (int v = 0; v < dim; ++v) {
        put(static_cast<int>(forms.times(i, v).in_O));
        put(forms.times(i, v).position);
      }
    }
    for (int b = 0; b < forms.no_of_border(); ++b) {
      put(forms.form(b));
      put(forms.origin_of(b).border);
      put(forms.origin_of(b).variable);
    }
  }
  void put(const ideal& I) {
    const auto& [gen] = I;
    put(gen);
  }
  void put(const presentation& w_R) {
    const auto& [pr, pr_monom, pr_deg, sigma, A_d_cols, A_d, A_d_maxdeg, A_d_coldeg] = w_R;
    put(pr);
    put(pr_monom);
    put(pr_deg);
    for (int j = 0; j < A_d_cols; ++j) put(w_R.column(j));
    put(A_d_coldeg);
    for (const int n : {sigma, A_d_cols, A_d_maxdeg}) put(n);
  }
  void put(const strand_numbers& strands) {
    const auto& [linres, linid, linom] = strands;
    for (const std::vector<int>& row : linres) put(row);
    put(static_cast<int>(linid));
    put(static_cast<int>(linom));
  }
  template <class T>
  void put(const char* name, const kept<T>& result) {
    out_ << name << (result ? ": " : ": none\n");
    if (result) put(*result);
  }

  std::string text() const { return out_.str(); }

 private:
  std::ostringstream out_;
};

// All that is known.
inline std::string contents(const results& known) {
  const auto& [bu_mo, sep, beta_matrix, Can_Lf, min_Ix, socle, omega, is_CB, is_ar_Go, strands] =
      known;
  contents_text text;
  text.put("bu_mo", bu_mo);
  text.put("sep", sep);
  text.put("beta_matrix", beta_matrix);
  text.put("Can_Lf", Can_Lf);
  text.put("min_Ix", min_Ix);
  text.put("socle", socle);
  text.put("omega", omega);
  text.put(static_cast<int>(is_CB));
  text.put(static_cast<int>(is_ar_Go));
  text.put(strands);
  return text.text();
}

// A set with all that is known of it.
inline std::string contents(const scheme& X) {
  contents_text points;
  points.put(X.P());
  return points.text() + contents(X.known());
}

// True when each result is not only equal, but the same.
inline bool same_results(const results& a, const results& b) {
  return a.bu_mo == b.bu_mo && a.sep == b.sep && a.beta_matrix == b.beta_matrix &&
         a.Can_Lf == b.Can_Lf && a.min_Ix == b.min_Ix && a.socle == b.socle && a.omega == b.omega;
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
