// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/random_integer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <utility>

namespace zep::tests {
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

TEST(ACG, ChoosesTheBytesOfEveryDrawAsInEveryRelease) {
  // Every choice of bytes occurs among so many draws.
  ACG generator(1234);
  std::uint32_t sum = 0;
  for (int i = 0; i < 1000; ++i) sum = 31U * sum + generator.draw();
  EXPECT_EQ(sum, 1883218987U);
}

TEST(ACG, BeginsWithTheSameDrawForASeedInEveryRelease) {
  std::uint32_t seed = 0;
  for (const std::uint32_t expected :
       {1525072166U, 3611118411U, 1783059422U, 3358714928U, 4048166713U, 3777749291U, 3793256970U,
        3068297914U, 3581959093U, 1497534028U, 684042034U,  1148255771U, 3628932754U, 2291488187U,
        2024499719U, 3097130481U, 2207539066U, 1768157316U, 2004337082U, 1817240508U, 4068670001U,
        717053510U,  453407761U,  1806137443U, 975537014U,  1831973187U, 3952563524U, 1272926957U,
        1949865818U, 2999879328U, 3899421674U, 111507258U}) {
    EXPECT_EQ(ACG(seed).draw(), expected) << seed;
    ++seed;
  }
  for (const auto& [larger, expected] :
       {std::pair(32U, 945542396U), std::pair(63U, 190645833U), std::pair(64U, 2527756322U),
        std::pair(1235U, 1728651105U), std::pair(4294967295U, 3480843118U)}) {
    EXPECT_EQ(ACG(larger).draw(), expected) << larger;
  }
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
}  // namespace zep::tests
