#include "resolve/DateTicks.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>

#include <host/Calendar.h>

namespace render {
namespace {

constexpr double day = host::secondsPerDay;

/// A distance of ticks: a multiple of a unit, counted from a place where the unit
/// begins.
struct Step {
  enum class Unit : std::uint8_t { second, month } unit;
  double count;
  double origin = 0; ///< of seconds: where one of the ticks lies

  double seconds() const { return unit == Unit::second ? count : count * 30 * day; }
};

using enum Step::Unit;

/// The first day is a Thursday; weeks begin on Monday.
constexpr double firstMonday = 4 * day;

constexpr Step below[] = {
    {second, 0.001},    {second, 0.002},     {second, 0.005},    {second, 0.01},
    {second, 0.02},     {second, 0.05},      {second, 0.1},      {second, 0.2},
    {second, 0.5},      {second, 1},         {second, 2},        {second, 5},
    {second, 10},       {second, 15},        {second, 30},       {second, 60},
    {second, 2 * 60},   {second, 5 * 60},    {second, 10 * 60},  {second, 15 * 60},
    {second, 30 * 60},  {second, 3600},      {second, 2 * 3600}, {second, 3 * 3600},
    {second, 6 * 3600}, {second, 12 * 3600}, {second, day},      {second, 2 * day},
};
constexpr Step calendar[] = {
    {second, 7 * day, firstMonday}, {month, 1}, {month, 2}, {month, 3}, {month, 6},
};

double secondsOf(std::int64_t monthsSinceYearZero) {
  const auto year = static_cast<int>(std::floor(static_cast<double>(monthsSinceYearZero) / 12));
  const auto month = static_cast<unsigned>(monthsSinceYearZero - 12 * std::int64_t{year}) + 1;
  return host::secondsOf(std::chrono::year(year) / std::chrono::month(month) / 1);
}

/// The months since the year 0 that begin at or before a point in time.
std::int64_t monthOf(double seconds) {
  const std::chrono::year_month_day date(
      host::calendarStart +
      std::chrono::days(static_cast<std::int64_t>(std::floor(seconds / day))));
  return 12 * std::int64_t{static_cast<int>(date.year())} + static_cast<unsigned>(date.month()) - 1;
}

/// Fills in the ticks; false, and some of them, when there are more than `most`.
template <class Place> bool fill(std::vector<double>& ticks, std::int64_t first, double low,
                                 double high, std::size_t most, Place place) {
  ticks.clear();
  for (std::int64_t i = first;; ++i) {
    const double tick = place(i);
    if (tick > high) return true;
    if (tick < low) continue;
    if (ticks.size() == most) return false;
    ticks.push_back(tick + 0.0); // no negative zero
  }
}

bool fits(std::vector<double>& ticks, const Step& step, double low, double high, std::size_t most) {
  if ((high - low) / step.seconds() > 2.0 * static_cast<double>(most) + 2) return false;
  if (step.unit == second) {
    const auto first = static_cast<std::int64_t>(std::floor((low - step.origin) / step.count));
    return fill(ticks, first, low, high, most, [&](std::int64_t i) {
      const auto multiple = static_cast<double>(i);
      // Below a second multiples are divided by a whole number: 3 / 10, not 3 * 0.1.
      return step.count < 1 ? multiple / std::round(1 / step.count)
                            : multiple * step.count + step.origin;
    });
  }
  const auto months = static_cast<std::int64_t>(step.count);
  const std::int64_t first = monthOf(low) / months - 1;
  return fill(ticks, first, low, high, most, [=](std::int64_t i) { return secondsOf(i * months); });
}

/// The finest step of which no more than `most` ticks lie within the range; years,
/// or days of lengths of time, go on by 1, 2 and 5.
class Search {
public:
  Search(double low, double high, double resolution, std::size_t most)
      : low_(low), high_(high), resolution_(resolution), most_(most) {}

  bool takes(const Step& step) {
    // A month of 28 days is told apart where the longest is.
    constexpr double shortest = 28.0 / 31.0;
    return step.seconds() >= resolution_ * shortest && fits(ticks_, step, low_, high_, most_);
  }
  template <std::size_t N> bool takesOneOf(const Step (&steps)[N]) {
    return std::ranges::any_of(steps, [this](const Step& step) { return takes(step); });
  }
  bool takesDecimal(Step step) {
    constexpr double digits[] = {1, 2, 5};
    constexpr int mostPowers = 16;
    const double unit = step.count;
    double power = 1;
    for (int i = 0; i < mostPowers; ++i, power *= 10)
      for (const double digit : digits) {
        step.count = unit * digit * power;
        if (takes(step)) return true;
      }
    return false;
  }
  /// A range within one month of a format that shows months has no place of its own.
  std::vector<double> ticksOrMiddle() && {
    if (ticks_.empty()) ticks_.push_back(low_ + (high_ - low_) / 2);
    return std::move(ticks_);
  }

private:
  double low_, high_, resolution_;
  std::size_t most_;
  std::vector<double> ticks_;
};

} // namespace

std::vector<double> dateTicks(double low, double high, double resolution, std::size_t most) {
  // The years that std::chrono keeps end at 32767.
  constexpr double farthest = 30000.0 * 365 * day;
  if (low < -farthest || high > farthest) return {};
  Search search(low, high, resolution, most);
  const bool found =
      search.takesOneOf(below) || search.takesOneOf(calendar) || search.takesDecimal({month, 12});
  return found ? std::move(search).ticksOrMiddle() : std::vector<double>();
}

std::vector<double> durationTicks(double low, double high, double resolution, std::size_t most) {
  constexpr double farthest = 1e15;
  if (low < -farthest || high > farthest) return {};
  Search search(low, high, resolution, most);
  const bool found = search.takesOneOf(below) || search.takesDecimal({second, 5 * day});
  return found ? std::move(search).ticksOrMiddle() : std::vector<double>();
}

} // namespace render
