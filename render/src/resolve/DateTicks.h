#pragma once

#include <cstddef>
#include <vector>

namespace render {

/// At most `most` ticks within [low, high] at places of the calendar: years, months,
/// Mondays, days, hours and so on, no closer than `resolution`; one in the middle when
/// there is no such place. All are seconds since 14 October 1582; low < high, both
/// finite. There are none when the range is outside the years that a calendar is kept
/// for.
std::vector<double> dateTicks(double low, double high, double resolution, std::size_t most);

/// The same for lengths of time: multiples of days, hours, minutes and seconds. There
/// are none past 10^15 seconds.
std::vector<double> durationTicks(double low, double high, double resolution, std::size_t most);

} // namespace render
