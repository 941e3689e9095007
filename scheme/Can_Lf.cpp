#include "scheme/Can_Lf.h"

#include "scheme/bu_mo.h"

namespace zep {

void need_Can_Lf(scheme& X) {
  need_bu_mo(X);
  if (!X.Can_Lf) X.Can_Lf.emplace(quotient::artinian, X.O, X.O_index, X.B, X.B_index, *X.Ix);
}

}  // namespace zep
