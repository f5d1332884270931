#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "read/ChartFolder.h"
#include "read/Node.h"

namespace render {

/// How the dates, times or durations of a variable are shown. Its values are seconds
/// since 14 October 1582 in the Gregorian calendar both ways, in UTC.
struct DateFormat {
  enum class Part : std::uint8_t {
    dayOfMonth,
    month,
    monthName,
    week, ///< the first begins with the year
    dayOfYear,
    dayOfWeek,
    quarter,
    year,
    hour,
    minute,
    second
  };
  struct ShownPart {
    Part part;
    bool fill = false;        ///< with zeros
    bool isLong = false;      ///< a name in full
    bool showCentury = false; ///< all digits of a year
    bool twentyFour = false;
    bool showAMPM = false;
    bool milliseconds = false;
    std::string suffix{};
  };

  std::vector<ShownPart> date{};
  std::vector<ShownPart> time{};
  std::string prefix{};
  std::string suffix{};
  std::string decimalSign = "."; ///< before milliseconds

  /// Reads a "dateTimeFormat" node. Without parts it shows minutes and seconds.
  static DateFormat read(const Node& node, const NumberSigns& signs);

  /// Whether a value is a length of time, not a point in it: no part names a day of
  /// the calendar.
  bool isDuration() const;

  /// The shortest time between two points that are shown differently, in seconds;
  /// of a month, quarter or year the longest.
  double resolution() const;
};

/// A Vega expression for the text of the value `seconds` (itself an expression). A
/// point in time beyond the calendar of a browser is shown as a number.
std::string dateText(const DateFormat& format, std::string_view seconds);

/// How wide the widest of these texts is drawn, in pixels.
double widestDate(const DateFormat& format, std::string_view language, double fontSize);

} // namespace render
