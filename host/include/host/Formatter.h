#pragma once

#include <string>
#include <string_view>

#include <host/Data.h>

/// Display texts of values, by display format. Only these follow the locale;
/// texts for machines come from ChartBase::asString.
namespace formatter {

/// A value of a variable with this format, in the process code page and without
/// outer blanks; the system-missing value is an empty text. For the string type 1
/// `value` is the first cell of a text of `width` bytes. No other type reports or
/// refuses anything: a code without a look of its own is a plain number.
///
/// Numbers: `decimals` is held to 0 to 16; `separator` groups the digits when it is
/// not empty; the decimal sign is that of CmnLoc. A number of more characters than
/// `width` (0 or less: no limit) is written in scientific notation with as many
/// digits as fit, and as asterisks when none fit. What is not finite is Inf, -Inf or
/// NaN.
///
/// Dates and times, types 20 to 30, 38, 39, 85 and 86, are seconds since 14 October
/// 1582 in the Gregorian calendar both ways. The width says which parts they have,
/// the same as in the meta format of the type; they are never cut. Names are in the
/// output language of the moment. What is not shown is dropped, never rounded up.
/// Types 21, 25 and 85 are durations: their first part counts on, and they have a
/// minus sign below zero. What no calendar reaches is a number in scientific notation.
std::string formattedValue(const OBS& value, int type, int width, int decimals,
                           std::string_view separator = {});
std::string formattedValue(double value, const KORVA_Format& format);

/// A number in a format, or empty when the format is none of numbers or dates: types
/// 2 to 12, 15 to 17, 20 to 40, 85 and 86.
std::string AsString(double value, const KORVA_Format& format);

} // namespace formatter
