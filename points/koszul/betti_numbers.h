// SPDX-License-Identifier: GPL-3.0-or-later
// The Betti numbers of the homogeneous coordinate ring.
#pragma once

#include "points/koszul/betti_table.h"
#include "points/ring/canonical_forms.h"
#include "points/ring/order_ideal.h"

namespace zep::points {

// The table of the minimal graded free resolution of R over the ring of all n + 1 variables, rows 0
// .. sigma + 1 (that of w_R follows by `betti_of_w_R`). As X_0 is no zero divisor it is that of
// A = R/(X_0) over the other variables, and
//
//     beta_(i,i+j) = c_(i,j) - r(i,j) - r(i+1,j-1)
//
// with the numbers c of critical cells of the Koszul complex of A and the ranks r(i,j) of its
// boundaries from bidegree (i, j) to (i - 1, j + 1). The linear strands are no longer than they
// are: once beta_(i,i+alpha-1) is 0 it stays so for all greater i, and once beta_(i,i+sigma+1), for
// all smaller ones.
//
// A is the Artinian reduction of X. Throws std::invalid_argument for sets without points or with
// equal points, and in composite characteristics; std::length_error where chains have more places
// than an int counts, which grow with 2^n.
betti_table betti_numbers(const order_ideal& X, const canonical_forms& A);

}  // namespace zep::points
