#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

/// Dates as numbers: seconds since the start of the calendar, 14 October 1582, in
/// the Gregorian calendar both ways and without time zones.
namespace host {

inline constexpr std::chrono::sys_days calendarStart = [] {
  using namespace std::chrono_literals;
  return 1582y / std::chrono::October / 14;
}();

inline constexpr double secondsPerDay = 86'400;
inline constexpr std::int64_t millisecondsPerDay = 86'400'000;

constexpr double secondsOf(std::chrono::sys_days day) {
  return static_cast<double>((day - calendarStart).count()) * secondsPerDay;
}

/// A day since the start of the calendar, and a millisecond of it.
struct Instant {
  std::int64_t day = 0;
  std::int64_t millisecond = 0;
};

/// The instant of a number, to the millisecond that has begun; nothing for numbers
/// that are not finite or whose days take more than 63 bits.
std::optional<Instant> instantOf(double seconds);

struct CalendarDay {
  std::int64_t year = 0;
  unsigned month = 1, dayOfMonth = 1, dayOfYear = 1; ///< from 1
  unsigned dayOfWeek = 0;                            ///< from Sunday
};

/// The day that many days after the start of the calendar, at most 2^62 either way.
CalendarDay calendarDay(std::int64_t day);

} // namespace host
