#pragma once

#include <string>
#include <string_view>

#include <host/Data.h>

/// Display texts of values, by display format. Only these follow the locale;
/// texts for machines come from ChartBase::asString.
namespace formatter {

/// A value of a variable with this format, in the process code page and without
/// outer blanks. `decimals` is held to 0 to 16; `separator` groups the digits when
/// it is not empty. A number of more characters than `width` (0: no limit) is
/// written in scientific notation with as many digits as fit, and as asterisks
/// when none fit; the system-missing value is an empty text. For string types
/// `value` is the first cell of a text of `width` bytes.
///
/// Dates and times are not built yet: such a format, or one that is not known, is
/// reported once and the plain number given.
std::string formattedValue(const OBS& value, int type, int width, int decimals,
                           std::string_view separator = {});
std::string formattedValue(double value, const KORVA_Format& format);

/// A number in a format, or empty when the format is not one of numbers or dates.
std::string AsString(double value, const KORVA_Format& format);

} // namespace formatter
