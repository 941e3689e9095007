#include "front/random_integer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace zep {
namespace {

TEST(ACG, DrawsTheSequenceOfEveryRelease) {
  ACG generator(1234);
  for (const std::uint32_t expected :
       {1880022365U, 17538528U, 4122848994U, 1778532145U, 3857342679U, 3884265607U, 418701136U,
        1474943712U, 989420780U, 883955962U}) {
    EXPECT_EQ(generator.draw(), expected);
  }
  for (int i = 11; i < 1000; ++i) generator.draw();
  EXPECT_EQ(generator.draw(), 1536986174U);
}

TEST(ACG, OtherSeedsDrawOtherSequences) {
  ACG small(3);
  ACG smaller(2);
  ACG large(1235);
  const std::uint32_t first = small.draw();
  EXPECT_NE(first, smaller.draw());
  EXPECT_NE(first, large.draw());
}

TEST(RandomInteger, DrawsTheCoordinatesOfEveryRelease) {
  ACG generator(1234);
  RandomInteger coordinate(0, 50, generator);
  for (const int expected : {32, 36, 18, 16, 9, 37, 10, 48, 23, 43, 0, 43, 33, 19, 42}) {
    EXPECT_EQ(coordinate(), expected);
  }
}

TEST(RandomInteger, TakesItsBoundsInEitherOrder) {
  ACG one(7);
  ACG other(7);
  RandomInteger upward(-3, 4, one);
  RandomInteger downward(4, -3, other);
  for (int i = 0; i < 100; ++i) {
    const int drawn = upward();
    EXPECT_EQ(drawn, downward());
    EXPECT_GE(drawn, -3);
    EXPECT_LE(drawn, 4);
  }
}

TEST(RandomInteger, SpansTheWholeRangeOfInts) {
  ACG one(7);
  ACG other(7);
  RandomInteger any(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), one);
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(any(), static_cast<std::int64_t>(other.draw()) + std::numeric_limits<int>::min());
  }
}

}  // namespace
}  // namespace zep
