// SPDX-License-Identifier: GPL-3.0-or-later
// The linear strands of I_X and w_R, found the long way: with vectors of polynomials in full length
// that are searched from end to end.
#pragma once

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "arith/ordering.h"
#include "arith/polynomial.h"
#include "arith/ring.h"
#include "base/output.h"
#include "points/module/presentation.h"
#include "points/ring/ideal.h"
#include "reference/polynomials.h"

namespace zep::tests {

using plain_vector = std::vector<polynomial>;

inline int size_of(const plain_vector& v) { return static_cast<int>(v.size()); }
inline int size_of(const std::vector<plain_vector>& v) { return static_cast<int>(v.size()); }

inline plain_vector zero_vector(int n) { return plain_vector(n, polynomial(0)); }

// The component with the greatest leading monomial, the first of several; -1 for a zero vector.
inline int plain_position(const plain_vector& v) {
  int position = -1;
  for (int k = 0; k < size_of(v); ++k) {
    if (sign(v[k]) == 0) continue;
    if (position < 0 || v[k].term(0) > v[position].term(0)) position = k;
  }
  return position;
}

// f -= c * m * g.
inline void subtract(polynomial& f, Fp8 c, const monom& m, const polynomial& g) {
  if (sign(g) == 0) return;
  polynomial product = g;
  product *= m;
  product *= c;
  f -= product;
}

inline void subtract(plain_vector& v, Fp8 c, const monom& m, const plain_vector& w) {
  for (int k = 0; k < size_of(v); ++k) subtract(v[k], c, m, w[k]);
}

inline void subtract(plain_vector& v, Fp8 c, const plain_vector& w) { subtract(v, c, monom(), w); }

inline void scale(plain_vector& v, Fp8 c) {
  for (polynomial& f : v) f *= c;
}

// Reduces each vector by those before it and divides it by its leading coefficient; returns the
// positions.
inline std::vector<int> plain_interreduce(std::vector<plain_vector>& vectors) {
  std::vector<int> positions;
  for (int i = 0; i < size_of(vectors); ++i) {
    plain_vector& v = vectors[i];
    int position = plain_position(v);
    for (int k = 0; k < i && position >= 0;) {
      const polynomial& f = v[position];
      const polynomial& g = vectors[k][position];
      if (positions[k] == position && g.term(0) == f.term(0)) {
        subtract(v, f.coef(0), vectors[k]);
        position = plain_position(v);
        k = 0;
      } else {
        ++k;
      }
    }
    if (position >= 0) scale(v, Fp8(1) / v[position].coef(0));
    positions.push_back(position);
  }
  return positions;
}

// A level of a strand.
struct plain_level {
  int count() const { return size_of(vectors); }

  int no_of_nonzero() const {
    int number = 0;
    for (const int position : positions) number += position >= 0 ? 1 : 0;
    return number;
  }

  // Requires a vector that is not zero.
  const monom& leading_monomial(int i) const { return vectors[i][positions[i]].term(0); }

  int rank = 0;
  std::vector<plain_vector> vectors;
  std::vector<int> positions;
  // A "." for each candidate for the next level that is none.
  std::string marks;
};

// Two vectors with the same position and what they are multiplied by.
struct plain_pair {
  int i;
  int j;
  monom times_i;
  monom times_j;
};

inline std::vector<plain_pair> plain_pairs(const plain_level& G, bool first_level) {
  std::vector<plain_pair> pairs;
  for (int i = 0; i < G.count() - 1; ++i) {
    for (int j = i + 1; j < G.count(); ++j) {
      if (G.positions[i] < 0 || G.positions[j] != G.positions[i]) continue;
      const monom& s = G.leading_monomial(i);
      const monom& t = G.leading_monomial(j);
      if (!first_level) {
        pairs.push_back({i, j, t, s});
        continue;
      }
      const monom L = lcm(s, t);
      if (L.tot_deg() - s.tot_deg() == 1) pairs.push_back({i, j, L / s, L / t});
    }
  }
  return pairs;
}

// Finds the candidates for the level after G: one for each pair, zero when it is none.
class plain_elimination {
 public:
  explicit plain_elimination(const plain_level& G) : G_(G) {}

  std::vector<plain_vector> candidates(const std::vector<plain_pair>& pairs) {
    candidates_.assign(pairs.size(), zero_vector(G_.count()));
    for (int t = 0; t < size_of(candidates_); ++t) reduce(t, pairs[t]);
    for (const pivot_row& row : pivot_rows_) candidates_[row.candidate] = zero_vector(G_.count());
    return std::move(candidates_);
  }

  // One "." for each that is none.
  std::string marks() const { return std::string(pivot_rows_.size(), '.'); }

 private:
  struct pivot_row {
    int position;
    plain_vector W;
    int candidate;
  };

  void reduce(int t, const plain_pair& pair) {
    plain_vector& candidate = candidates_[t];
    candidate[pair.i] = polynomial(pair.times_i, -Fp8(1));
    candidate[pair.j] = polynomial(pair.times_j);
    plain_vector W = zero_vector(G_.rank);
    subtract(W, -Fp8(1), pair.times_j, G_.vectors[pair.j]);
    subtract(W, Fp8(1), pair.times_i, G_.vectors[pair.i]);
    for (int k = plain_position(W); k >= 0; k = plain_position(W)) {
      const Fp8 c = W[k].coef(0);
      if (subtract_pivot_row(W, k, t) || subtract_vector(W, k, t)) continue;
      scale(candidate, Fp8(1) / c);
      scale(W, Fp8(1) / c);
      pivot_rows_.push_back({k, W, t});
      return;
    }
  }

  bool subtract_pivot_row(plain_vector& W, int k, int t) {
    const monom lead = W[k].term(0);
    const Fp8 c = W[k].coef(0);
    for (const pivot_row& row : pivot_rows_) {
      if (row.position != k || row.W[k].term(0) != lead) continue;
      subtract(W, c, row.W);
      subtract(candidates_[t], c, candidates_[row.candidate]);
      return true;
    }
    return false;
  }

  bool subtract_vector(plain_vector& W, int k, int t) {
    const monom lead = W[k].term(0);
    const Fp8 c = W[k].coef(0);
    for (int l = 0; l < G_.count(); ++l) {
      if (G_.positions[l] != k || !Zn_order_lt(G_.leading_monomial(l), lead)) continue;
      const monom q = lead / G_.leading_monomial(l);
      subtract(W, c, q, G_.vectors[l]);
      candidates_[t][l] -= polynomial(q, c);
      return true;
    }
    return false;
  }

  const plain_level& G_;
  std::vector<plain_vector> candidates_;
  std::vector<pivot_row> pivot_rows_;
};

// A strand and what is to be seen of its computation.
struct plain_strand {
  // From the generators on for I_X, from the linear relations on for w_R.
  std::vector<plain_level> levels;
  // What is reported.
  std::string progress;
  // The row of linres.
  std::vector<int> numbers;

  // What goes to standard output.
  std::string marks() const {
    std::string all;
    for (const plain_level& level : levels) all += level.marks;
    return all;
  }
};

// Makes the candidates for the level after the last one.
inline std::vector<plain_vector> plain_candidates(plain_strand& strand, bool first_level) {
  plain_level& G = strand.levels.back();
  const std::vector<plain_pair> pairs = plain_pairs(G, first_level);
  if (!pairs.empty()) strand.progress += "eliminating syzygies ...\n";
  for (std::size_t n = pairs.size(); n > 0; --n) strand.progress += "[" + std::to_string(n) + "]";
  strand.progress += "\n";
  plain_elimination elimination(G);
  std::vector<plain_vector> candidates = elimination.candidates(pairs);
  G.marks = elimination.marks();
  return candidates;
}

// Adds a level; its number has the given place in the row when there is such a place.
inline void add_level(plain_strand& strand, std::vector<plain_vector> vectors, int rank, int place,
                      int degree) {
  std::vector<int> positions = plain_interreduce(vectors);
  strand.levels.push_back({rank, std::move(vectors), std::move(positions), ""});
  const int number = strand.levels.back().no_of_nonzero();
  if (place >= 0 && place < static_cast<int>(strand.numbers.size())) {
    strand.numbers[place] = number;
  }
  strand.progress +=
      std::to_string(number) + " syzygies in degree " + std::to_string(degree) + " found\n";
}

// The generators of least degree, the first ones.
inline plain_level plain_generators(const ideal& I) {
  const std::vector<polynomial>& all = I.gen;
  plain_level result;
  result.rank = 1;
  int n = static_cast<int>(all.size());
  while (all[n - 1].term(0).tot_deg() != all[0].term(0).tot_deg()) --n;
  for (int i = 0; i < n; ++i) {
    result.vectors.push_back({all[i]});
    result.positions.push_back(0);
  }
  return result;
}

// The strand of I_X, from its minimal generators, of which there are some.
inline plain_strand plain_strand_of_I_X(const ideal& min_Ix, int alpha) {
  plain_strand strand;
  strand.numbers.assign(dim, 0);
  strand.levels.push_back(plain_generators(min_Ix));
  strand.numbers[0] = strand.levels[0].count();
  strand.progress = "I_X has " + std::to_string(strand.numbers[0]) + " generators of degree " +
                    std::to_string(alpha) + "\n";
  for (int k = 1;; ++k) {
    const int rank = strand.levels.back().count();
    std::vector<plain_vector> candidates = plain_candidates(strand, k == 1);
    if (candidates.empty()) break;
    add_level(strand, std::move(candidates), rank, k, alpha - k);
  }
  strand.progress += Line;
  return strand;
}

// Number of generators of w_R with a monomial of the same degree as the last one.
inline int plain_no_of_generators(const presentation& w_R) {
  const auto degree = [&](int i) { return w_R.pr_monom[i].tot_deg(); };
  const int last = w_R.no_of_pr() - 1;
  int g = 1;
  for (int i = 0; i < last; ++i) g += degree(i) == degree(last) ? 1 : 0;
  return g;
}

// The last g entries of the relations that have a linear one among them.
inline std::vector<plain_vector> plain_relations(const presentation& w_R, int g) {
  std::vector<plain_vector> found;
  const int n = w_R.no_of_pr();
  for (int j = 0; j < w_R.A_d_cols; ++j) {
    const std::vector<polynomial> column = w_R.column(j);
    plain_vector relation;
    bool linear = false;
    for (int i = n - g; i < n; ++i) {
      relation.push_back(column[i]);
      const monom& m = relation.back().term(0);
      linear = linear || m.tot_deg() + m.exp(proj - 1) == 1;
    }
    if (linear) found.push_back(relation);
  }
  return found;
}

inline void drop_zero_vectors(std::vector<plain_vector>& vectors) {
  std::erase_if(vectors, [](const plain_vector& v) { return plain_position(v) < 0; });
}

enum class plain_extent { all, linear_relations };

// The strand of w_R, or its beginning. There are generators.
inline plain_strand plain_strand_of_w_R(const presentation& w_R,
                                        plain_extent extent = plain_extent::all) {
  plain_strand strand;
  strand.numbers.assign(dim, 0);
  const int last = dim - 1;
  const int g = plain_no_of_generators(w_R);
  strand.numbers[last] = g;
  strand.progress =
      "w_R has " + std::to_string(g) + " generators in degree " + std::to_string(-w_R.sigma) + "\n";
  add_level(strand, plain_relations(w_R, g), g, last - 1, -w_R.sigma - 1);
  for (int k = 2; extent == plain_extent::all; ++k) {
    const int rank = strand.levels.back().count();
    std::vector<plain_vector> candidates = plain_candidates(strand, false);
    drop_zero_vectors(candidates);
    if (candidates.empty()) break;
    add_level(strand, std::move(candidates), rank, last - k, -w_R.sigma - k);
  }
  strand.progress += Line;
  return strand;
}

// The vectors of a level as text: on the screen and in files.

inline std::string plain_screen_form(const plain_level& level) {
  std::ostringstream text;
  for (int i = 0; i < level.count(); ++i) {
    if (level.positions[i] < 0) continue;
    text << "[ ";
    for (int k = 0; k < level.rank; ++k) {
      text << (k > 0 ? ";\n" : "");
      show(text, level.vectors[i][k], k > 0 ? 0 : 2);
    }
    text << " ]\n";
  }
  return text.str();
}

inline std::string plain_file_form(const plain_level& level) {
  if (level.no_of_nonzero() == 0) return "";
  std::ostringstream text;
  text << level.rank << "\n" << level.no_of_nonzero() << "\n";
  for (int i = 0; i < level.count(); ++i) {
    for (int k = 0; k < level.rank && level.positions[i] >= 0; ++k) {
      level.vectors[i][k].put(text);
      text << "\n";
    }
  }
  return text.str();
}

// Under its heading.
inline std::string plain_matrix(const plain_level& level, int number, const std::string& module) {
  if (level.no_of_nonzero() == 0) return "";
  return "\n" + std::to_string(number) + ". matrix of linear resolution of " + module + " : \n" +
         plain_file_form(level);
}

}  // namespace zep::tests
