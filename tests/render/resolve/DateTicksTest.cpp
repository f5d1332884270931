#include "resolve/DateTicks.h"

#include <chrono>
#include <cmath>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::ElementsAre;

constexpr sys_days start = 1582y / October / 14;
constexpr double day = 86400;

double at(year_month_day date, double seconds = 0) {
  return static_cast<double>((sys_days(date) - start).count()) * day + seconds;
}

std::vector<std::string> shown(const std::vector<double>& ticks) {
  std::vector<std::string> texts;
  for (const double tick : ticks) {
    const year_month_day date(start + days(static_cast<int>(std::floor(tick / day))));
    const double ofDay = tick - at(date);
    texts.push_back(fmt::format("{}-{}-{}", static_cast<int>(date.year()),
                                static_cast<unsigned>(date.month()),
                                static_cast<unsigned>(date.day())));
    if (ofDay != 0) texts.back() += fmt::format(" {}", ofDay);
  }
  return texts;
}

struct Range {
  const char* name;
  double low, high, resolution;
  std::size_t most;
  std::vector<std::string> ticks;
};

class DateTicksTest : public testing::TestWithParam<Range> {};

TEST_P(DateTicksTest, LieAtPlacesOfTheCalendar) {
  const auto& [name, low, high, resolution, most, ticks] = GetParam();
  EXPECT_EQ(shown(render::dateTicks(low, high, resolution, most)), ticks);
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, DateTicksTest,
    testing::Values(
        Range{"decades",
              at(1965y / 3 / 1),
              at(2016y / 9 / 1),
              day,
              6,
              {"1970-1-1", "1980-1-1", "1990-1-1", "2000-1-1", "2010-1-1"}},
        Range{"centuries",
              at(-550y / 1 / 1),
              at(650y / 1 / 1),
              day,
              3,
              {"-500-1-1", "0-1-1", "500-1-1"}},
        Range{"quarters",
              at(1999y / 11 / 15),
              at(2000y / 8 / 1),
              day,
              3,
              {"2000-1-1", "2000-4-1", "2000-7-1"}},
        Range{"mondays",
              at(2000y / 2 / 20),
              at(2000y / 3 / 14),
              day,
              4,
              {"2000-2-21", "2000-2-28", "2000-3-6", "2000-3-13"}},
        Range{"leapDay",
              at(2000y / 2 / 27, 1),
              at(2000y / 3 / 2),
              day,
              4,
              {"2000-2-28", "2000-2-29", "2000-3-1", "2000-3-2"}},
        Range{"hours",
              at(2000y / 1 / 1, 3600),
              at(2000y / 1 / 1, 80000),
              60,
              4,
              {"2000-1-1 21600", "2000-1-1 43200", "2000-1-1 64800"}},
        Range{"beforeTheCalendar",
              at(1582y / 10 / 12),
              at(1582y / 10 / 16),
              day,
              5,
              {"1582-10-12", "1582-10-13", "1582-10-14", "1582-10-15", "1582-10-16"}},
        Range{"asCoarseAsTheFormat",
              at(2000y / 1 / 10),
              at(2000y / 4 / 10),
              31 * day,
              9,
              {"2000-2-1", "2000-3-1", "2000-4-1"}},
        Range{"noPlaceWithin", at(2000y / 1 / 10), at(2000y / 1 / 12), 31 * day, 9, {"2000-1-11"}},
        Range{"pastTheCalendar", 1e13, 2e13, day, 9, {}}),
    [](const auto& test) { return test.param.name; });

TEST(DurationTicks, AreWholeHoursMinutesAndSeconds) {
  EXPECT_THAT(render::durationTicks(-100, 200, 1, 5), ElementsAre(-60, 0, 60, 120, 180));
  EXPECT_THAT(render::durationTicks(0, 0.35, 0.001, 4), ElementsAre(0, 0.1, 0.2, 0.3));
  EXPECT_THAT(render::durationTicks(0, 40 * day, 60, 5),
              ElementsAre(0, 10 * day, 20 * day, 30 * day, 40 * day));
  EXPECT_THAT(render::durationTicks(1e300, 2e300, 60, 5), ElementsAre());
}

} // namespace
