// The ring in force: its variables. The field is with Fp8, the term order with ordering.
//
// Affine monomials use the first `dim` variables. Projective ones use `proj` = `dim` + 1; the last
// of them homogenises. A computation that makes projective monomials raises `dim` to `proj` for
// its duration with a `raised_dim`.
#pragma once

#include <string>

#include "base/floors.h"

namespace zep::arith {

// No ring has more variables: one monomial slot each.
constexpr int max_variables = 27;

// Number of affine variables, the dimension of the projective space.
extern int dim;

// Number of homogeneous coordinates; stays as it is while `dim` is raised.
extern int proj;

// Names of the variables, one character each, at least `proj` of them.
extern std::string varstring;

// Makes P^n the space in force: dim = n, proj = n + 1. Requires 2 <= n < max_variables.
// Monomials made before are meaningless afterwards.
void set_dimension(int n);

// Raises the global `dim` to `proj` while it lives, so that new monomials are projective. Nests.
class raised_dim {
 public:
  raised_dim() : before_(dim) { dim = proj; }
  ~raised_dim() { dim = before_; }
  raised_dim(const raised_dim&) = delete;
  raised_dim& operator=(const raised_dim&) = delete;

 private:
  int before_;
};

}  // namespace zep::arith
