// Hilbert function and numerical invariants.
//
// With a degree-compatible term order the degrees of the order ideal count the Artinian reduction
// of the coordinate ring degree by degree; the separators' degrees decide the Cayley-Bacharach
// property, and with it the symmetry of the Hilbert function decides whether the ring is Gorenstein
// (Davis, Geramita, Orecchia: Gorenstein algebras and the Cayley-Bacharach theorem, 1985).
#pragma once

#include "points/record/scheme.h"

namespace zep::points {

// H(n) and delta H(n) for any n: 0 below 0; from s on the constant s, and 0.
int hilbert_function(const scheme& X, int n);
int difference_function(const scheme& X, int n);

// Sets delta_fct, hilb_fct, sigma, delta and alpha from O and Ix. sigma is one less than the
// regularity index, -1 for a single point.
void hilbert(scheme& X);

// Sets is_CB, and is_ar_Go if X has the Cayley-Bacharach property, from the separators.
void hilbert2(scheme& X);

}  // namespace zep::points
