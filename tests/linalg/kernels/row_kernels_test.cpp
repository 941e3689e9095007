// SPDX-License-Identifier: GPL-3.0-or-later

#include "linalg/kernels/row_kernels.h"

#include <gtest/gtest.h>

namespace zep::tests {
namespace {

TEST(RowKernels, TheFastestVariantIsInForce) {
  EXPECT_EQ(&kernels_in_force::get(), runnable_kernels().back());
}

TEST(RowKernels, LookUpsAndPortableLoopsRunEverywhere) {
  const auto runnable = runnable_kernels();
  ASSERT_GE(runnable.size(), 2U);
  EXPECT_EQ(runnable[0], &look_up_kernels);
  EXPECT_EQ(runnable[1], &portable_kernels);
}

TEST(RowKernels, AllVariantsForX86AreTestedHere) {
#if defined(__x86_64__) || defined(__i386__)
  if (avx512_kernels() == nullptr) GTEST_SKIP() << "this processor lacks AVX-512BW";
  EXPECT_EQ(runnable_kernels().size(), 4U);
#else
  GTEST_SKIP() << "no such processor";
#endif
}

TEST(RowKernels, AVariantIsInForceAsLongAsItsGuardLives) {
  const row_kernels* const before = &kernels_in_force::get();
  {
    const kernels_in_force outer(portable_kernels);
    EXPECT_EQ(&kernels_in_force::get(), &portable_kernels);
    {
      const kernels_in_force inner(look_up_kernels);
      EXPECT_EQ(&kernels_in_force::get(), &look_up_kernels);
    }
    EXPECT_EQ(&kernels_in_force::get(), &portable_kernels);
  }
  EXPECT_EQ(&kernels_in_force::get(), before);
}

}  // namespace
}  // namespace zep::tests
