#include "compute/Crowd.h"

#include <gtest/gtest.h>

namespace {

using render::Area;
using render::Crowd;

TEST(Crowd, TellsHowMuchOfAnAreaOthersCover) {
  Crowd crowd;
  crowd.add({.left = 0, .top = 0, .right = 100, .bottom = 100});
  const std::size_t small = crowd.add({.left = 90, .top = 90, .right = 110, .bottom = 95});
  const Area corner{.left = 80, .top = 80, .right = 120, .bottom = 120};
  EXPECT_EQ(crowd.covered(corner), 400 + 100) << "each once, however many cells it reaches into";
  EXPECT_EQ(crowd.covered(corner, small), 400);
  EXPECT_EQ(crowd.covered(corner.movedBy(20, 0)), 50);
  crowd.move(small, {.left = -50, .top = -40, .right = -45, .bottom = -30});
  EXPECT_EQ(crowd.covered(corner), 400);
  EXPECT_EQ(crowd.covered({.left = -48, .top = -99, .right = 99, .bottom = -35}), 15);
  crowd.remove(small);
  EXPECT_EQ(crowd.covered({.left = -48, .top = -99, .right = 99, .bottom = -35}), 0);
}

TEST(Crowd, MeetsNothingFarAway) {
  Crowd crowd;
  crowd.add({.left = -1e300, .top = 1e300, .right = -1e300, .bottom = 1e300});
  EXPECT_EQ(crowd.covered({.left = 0, .top = 0, .right = 1, .bottom = 1}), 0);
}

} // namespace
