#include "linalg/row_kernels.h"

namespace zep {

std::vector<const row_kernels*> runnable_kernels() {
  std::vector<const row_kernels*> result = {&look_up_kernels, &portable_kernels};
  if (const row_kernels* const kernels = avx2_kernels()) result.push_back(kernels);
  return result;
}

const row_kernels* kernels_in_force::current_ = runnable_kernels().back();

}  // namespace zep
