// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/kernels/row_kernels.h"

namespace zep::linalg {

std::vector<const row_kernels*> runnable_kernels() {
  std::vector<const row_kernels*> result = {&look_up_kernels, &portable_kernels};
  for (const row_kernels* const kernels : {avx2_kernels(), avx512_kernels()}) {
    if (kernels != nullptr) result.push_back(kernels);
  }
  return result;
}

const row_kernels* kernels_in_force::current_ = runnable_kernels().back();

}  // namespace zep::linalg
