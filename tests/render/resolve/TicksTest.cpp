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

TEST(Ticks, OfLogarithmsHaveTheDecimalsOfEachPower) {
  const struct {
    double base, low, high;
    std::vector<double> values;
    int decimals;
  } cases[] = {
      {2, 0.2, 5, {0.25, 0.5, 1, 2, 4}, 2},
      {10, 0.0009, 20, {0.001, 0.01, 0.1, 1, 10}, 3},
      {10, 7, 130, {10, 20, 50, 100}, 0},
      {10, 101, 140, {105, 110, 115, 120, 125, 130, 135, 140}, 0},
      {1.5, 1, 4, {1, 1.5, 2.25, 3.375}, 3},
  };
  for (const auto& [base, low, high, values, decimals] : cases) {
    const render::Ticks ticks = render::ticksOfPowers(base, low, high);
    EXPECT_EQ(ticks.values, values) << base << " " << low;
    EXPECT_EQ(ticks.decimals, decimals) << base << " " << low;
  }
  const double e = std::exp(1);
  EXPECT_EQ(render::ticksOfPowers(e, 0.04, 30).decimals, 4) << "0.0498 to 20.0855";
}

TEST(Ticks, OfLogarithmsGoThroughZero) {
  const struct {
    double base, low, high;
    std::vector<double> values;
  } cases[] = {
      {10, -2.9, 11.4, {-2, -1, 0, 1, 2, 5, 10}},
      {10, -50, 2000, {-10, -1, 0, 1, 10, 100, 1000}},
      {10, -0.31, 0.2, {-0.3, -0.2, -0.1, 0, 0.1, 0.2}},
      {10, -8.4, -5.9, {-8, -7.5, -7, -6.5, -6}},
      {2, -3, 9, {-2, -1, 0, 1, 2, 4, 8}},
      {100, -5, 50, {-1, 0, 1}},
      {10, -1e12, 1e12, {-1e12, -1e9, -1e6, -1e3, -1, 0, 1, 1e3, 1e6, 1e9, 1e12}},
  };
  for (const auto& [base, low, high, values] : cases)
    EXPECT_EQ(render::ticksOfLogarithm(base, low, high).values, values) << low;
}

} // namespace
