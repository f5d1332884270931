#include "resolve/Ticks.h"

#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

TEST(Ticks, AreRoundNumbersWithinTheScale) {
  EXPECT_THAT(render::ticksWithin(169.05, 233.95, 8).values,
              ElementsAre(170, 180, 190, 200, 210, 220, 230));
  EXPECT_THAT(render::ticksWithin(-1, 1, 4).values, ElementsAre(-1, -0.5, 0, 0.5, 1));
}

TEST(Ticks, BelowOneHaveNoRoundingError) {
  const render::Ticks ticks = render::ticksWithin(0, 0.31, 3);
  EXPECT_THAT(ticks.values, ElementsAre(0, 0.1, 0.2, 0.3));
  EXPECT_EQ(ticks.decimals, 1);
}

TEST(Ticks, HaveNoNegativeZero) {
  for (const double value : render::ticksWithin(-0.2, 0.3, 5).values)
    EXPECT_FALSE(value == 0 && std::signbit(value));
}

TEST(Ticks, EndAlsoWhereNeighborsRoundToOneNumber) {
  EXPECT_LE(render::ticksWithin(1e16, 1e16 + 4, 8).values.size(), 100U);
  EXPECT_LE(render::ticksWithin(1e-310, 2e-310, 8).values.size(), 100U);
}

} // namespace
