#pragma once

#include <optional>
#include <string>

namespace host {

/// A number in a display format of dates, with names in the output language, or of
/// durations; in the process code page. The width selects parts. Nothing for a
/// number that the calendar does not reach.
std::optional<std::string> dateText(double value, int code, int width);
std::optional<std::string> durationText(double value, int code, int width);

} // namespace host
