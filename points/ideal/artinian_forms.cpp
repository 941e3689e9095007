#include "points/ideal/artinian_forms.h"

#include "points/walk/buchberger_moeller.h"

namespace zep::points {

void need_Can_Lf(scheme& X) {
  need_bu_mo(X);
  if (!X.Can_Lf) X.Can_Lf.emplace(quotient::artinian, X.O, X.O_index, X.B, X.B_index, *X.Ix);
}

}  // namespace zep::points
