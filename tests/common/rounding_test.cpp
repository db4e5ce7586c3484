#include "common/rounding.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace tarnwick::common {
namespace {

TEST(Rounding, TakesTheEvenNeighbourOfAHalf) {
  EXPECT_EQ(roundHalfEven(2.5), 2);
  EXPECT_EQ(roundHalfEven(3.5), 4);
  EXPECT_EQ(roundHalfEven(-2.5), -2);
  EXPECT_EQ(roundHalfEven(0.49999999999999994), 0);
}

TEST(ToWhole, RoundsAndClamps) {
  EXPECT_EQ(toWhole<std::int32_t>(2.5), 2);
  EXPECT_EQ(toWhole<std::int16_t>(-7.6), -8);
  EXPECT_EQ(toWhole<std::uint8_t>(255.5), 255);
  EXPECT_EQ(toWhole<std::uint8_t>(-1), 0);
  EXPECT_EQ(toWhole<std::int16_t>(32767.4), 32767);
  EXPECT_EQ(toWhole<std::int32_t>(HUGE_VAL), 2147483647);
  EXPECT_EQ(toWhole<std::int32_t>(-HUGE_VAL), -2147483647 - 1);
  EXPECT_EQ(toWhole<std::uint32_t>(4294967294.6), 4294967295U);
  EXPECT_EQ(toWhole<std::int32_t>(std::nan("")), 0);
}

}  // namespace
}  // namespace tarnwick::common
