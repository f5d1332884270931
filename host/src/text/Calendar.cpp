#include <host/Calendar.h>

#include <cmath>
#include <limits>

namespace host {
namespace {

struct Division {
  std::int64_t quotient, rest; ///< the rest is never negative
};

constexpr Division divide(std::int64_t number, std::int64_t by) {
  const std::int64_t rest = (number % by + by) % by;
  return {(number - rest) / by, rest};
}

} // namespace

std::optional<Instant> instantOf(double seconds) {
  constexpr double mostDays = 0x1p62;
  const double ofDay = std::fmod(seconds, secondsPerDay);
  const double days = (seconds - ofDay) / secondsPerDay;
  if (!(std::abs(days) < mostDays)) return std::nullopt; // also what is not a number

  // A number like 45930.123 stands a hair below or above its millisecond: what the
  // number cannot tell apart from a whole one is that one.
  const double milliseconds = ofDay * 1000;
  const double nearest = std::round(milliseconds);
  const double blur = std::abs(seconds) * 1000 * std::numeric_limits<double>::epsilon();
  const bool isWhole = std::abs(milliseconds - nearest) <= blur;
  const auto begun = static_cast<std::int64_t>(isWhole ? nearest : std::floor(milliseconds));
  const Division split = divide(begun, millisecondsPerDay);
  return Instant{static_cast<std::int64_t>(days) + split.quotient, split.rest};
}

CalendarDay calendarDay(std::int64_t day) {
  using namespace std::chrono;
  using namespace std::chrono_literals;
  // The calendar repeats itself, weekdays included, every 400 years; the library's
  // own years end at 32767.
  constexpr sys_days cycleStart = 2000y / January / 1;
  constexpr std::int64_t yearsOfCycle = 400;
  constexpr std::int64_t daysOfCycle = 146'097;
  const Division cycle = divide(day - (cycleStart - calendarStart).count(), daysOfCycle);
  const sys_days inCycle = cycleStart + days(cycle.rest);
  const year_month_day date(inCycle);
  const sys_days newYear = date.year() / January / 1;
  return {.year = cycle.quotient * yearsOfCycle + static_cast<int>(date.year()),
          .month = static_cast<unsigned>(date.month()),
          .dayOfMonth = static_cast<unsigned>(date.day()),
          .dayOfYear = static_cast<unsigned>((inCycle - newYear).count()) + 1,
          .dayOfWeek = weekday(inCycle).c_encoding()};
}

} // namespace host
