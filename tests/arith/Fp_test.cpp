#include "arith/Fp.h"

#include <gtest/gtest.h>

#include "arith/Fp8.h"

namespace zep {
namespace {

TEST(Fp, InvertsTwoToFiftyOneModulo101) {
  Fp8::prime = 101;
  Fp8::init();
  Fp x(2);
  x.invert();
  EXPECT_EQ(x.value(), 51);
}

}  // namespace
}  // namespace zep
