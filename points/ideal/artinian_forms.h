// Canonical forms, when they are needed.
#pragma once

#include "points/record/scheme.h"

namespace zep::points {

// Makes sure that bu_mo has run and that X.Can_Lf exists.
void need_Can_Lf(scheme& X);

}  // namespace zep::points
