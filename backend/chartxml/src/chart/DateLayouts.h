#pragma once

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

#include <chartxml/Chart.h>
#include <host/ZephUni.h>

/// What the display formats of dates and times show, by type code and width.
///
/// Their irregularities are the format codes' own and meant: type 86 has minutes
/// without hours, type 85 has no element to hold its minutes and seconds, the week's
/// word stands on the outer element.
namespace dates {

/// A limit that every width exceeds.
inline constexpr int anyWidth = std::numeric_limits<int>::min();

constexpr bool exceeds(int width, int limit) { return limit == anyWidth || width > limit; }

/// An attribute that is "true" at widths above `above`, else absent.
struct Flag {
  const XMLCh* name = nullptr;
  int above = anyWidth;
};

/// One part of a date or time, made at widths above `above`.
struct Part {
  const XMLCh* name = nullptr;
  std::array<Flag, 2> flags{};
  int above = anyWidth;
  const char* suffix = nullptr; ///< key of a text
};

using Parts = std::array<Part, 3>;

struct Layout {
  int type;
  std::optional<Parts> date; ///< no value: no such element; no parts: an empty one
  std::optional<Parts> time;
  const char* prefix = nullptr; ///< key of a text
};

inline constexpr Flag fill{ZephUni::_fill};

inline constexpr Part dayOfMonth{ChartBase::_dayOfMonth, {fill}};
inline constexpr Part dayOfYear{ZephUni::_dayOfYear, {fill}};
inline constexpr Part dayOfWeek{ChartBase::_dayOfWeek, {Flag{ZephUni::_long, 3}}};
inline constexpr Part week{ZephUni::_week};
inline constexpr Part month{ZephUni::_month};
inline constexpr Part filledMonth{ZephUni::_month, {fill}};
inline constexpr Part monthName{ZephUni::_monthName};
inline constexpr Part longMonthName{ZephUni::_monthName, {Flag{ZephUni::_long, 3}}};
inline constexpr Part quarter{ZephUni::_quarter, {}, anyWidth, " Q "};
inline constexpr Part hour{ZephUni::_hour, {fill, Flag{ZephUni::_twentyFour}}};
inline constexpr Part minute{ZephUni::_minute, {fill}};

constexpr Part year(int centuryAbove) {
  return {ZephUni::_year, {Flag{ZephUni::_showCentury, centuryAbove}}};
}
constexpr Part second(int above, int millisecondsAbove) {
  return {ZephUni::_second, {fill, Flag{ZephUni::_milliseconds, millisecondsAbove}}, above};
}

inline constexpr std::nullopt_t none = std::nullopt;
inline constexpr Parts empty{};
inline constexpr Parts shortDate{dayOfMonth, filledMonth, year(8)};

inline constexpr Layout layouts[] = {
    {20, Parts{dayOfMonth, monthName, year(9)}, empty},
    {21, none, Parts{hour, minute, second(5, 8)}},
    {22, Parts{dayOfMonth, monthName, year(anyWidth)}, Parts{hour, minute, second(17, 20)}},
    {23, shortDate, empty},
    {24, Parts{dayOfYear, year(5)}, empty},
    {25, Parts{dayOfYear}, Parts{hour, minute, second(9, 12)}},
    {26, Parts{dayOfWeek}, empty},
    {27, Parts{longMonthName}, empty},
    {28, Parts{monthName, year(6)}, empty},
    {29, Parts{quarter, year(7)}, empty},
    {30, Parts{week, year(8)}, empty, " WK "},
    {38, shortDate, empty},
    {39, shortDate, empty},
    {85, none, none},
    {86, Parts{dayOfMonth, month, year(anyWidth)}, Parts{minute, second(anyWidth, 19)}},
};

/// The layout of a type code, or null when it is none of a date or time.
inline const Layout* layoutOf(int type) {
  const auto* found = std::ranges::find(layouts, type, &Layout::type);
  return found == std::end(layouts) ? nullptr : found;
}

} // namespace dates
