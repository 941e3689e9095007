#include "arith/ring.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "tests/ring_in_force.h"

namespace zep::tests {
namespace {

// Taken before any test changes them.
const int dim_at_start = dim;
const int proj_at_start = proj;
std::string names_at_start;

// The names are no constant: they are there when all that is global has been made, not before.
class names_taken_at_start : public testing::Environment {
 public:
  void SetUp() override { names_at_start = varstring; }
};
const testing::Environment* const taking_names =
    testing::AddGlobalTestEnvironment(std::make_unique<names_taken_at_start>().release());

TEST(Ring, StartsWithThreeAffineVariables) {
  EXPECT_EQ(dim_at_start, 3);
  EXPECT_EQ(proj_at_start, 4);
}

TEST(Ring, SetDimensionSetsBothCounts) {
  const ring_in_force ring;
  for (int n = 2; n < max_variables; ++n) {
    set_dimension(n);
    EXPECT_EQ(dim, n);
    EXPECT_EQ(proj, n + 1);
  }
}

TEST(Ring, NamesEveryVariableAtStart) {
  EXPECT_EQ(names_at_start, "XYZTabcdefghijklmnopqrstuvw");
  EXPECT_EQ(names_at_start.size(), static_cast<std::size_t>(max_variables));
}

TEST(Ring, RaisedDimRaisesForItsLifeOnly) {
  for (const int n : {2, 3, 6}) {
    const ring_in_force ring(101, n);
    {
      const raised_dim raised;
      EXPECT_EQ(dim, n + 1);
      EXPECT_EQ(proj, n + 1);
    }
    EXPECT_EQ(dim, n);
    EXPECT_EQ(proj, n + 1);
  }
}

TEST(Ring, RaisedDimNests) {
  const ring_in_force ring;
  {
    const raised_dim outer;
    {
      const raised_dim inner;
      EXPECT_EQ(dim, 4);
    }
    EXPECT_EQ(dim, 4);
  }
  EXPECT_EQ(dim, 3);
}

TEST(Ring, RaisedDimRestoresWhenAnExceptionPasses) {
  const ring_in_force ring;
  const auto interrupted = [] {
    const raised_dim raised;
    throw std::runtime_error("interrupted");
  };
  EXPECT_THROW(interrupted(), std::runtime_error);
  EXPECT_EQ(dim, 3);
}

}  // namespace
}  // namespace zep::tests
