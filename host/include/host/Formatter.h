#pragma once

#include <string>
#include <string_view>

#include <host/Data.h>

/// Display texts of values, by display format. Only these follow the locale;
/// texts for machines come from ChartBase::asString.
namespace formatter {

/// A value of a variable with this format; `separator` groups the digits when it
/// is not empty. For string types `value` is the first cell of the text.
std::string formattedValue(const OBS& value, int type, int width, int decimals,
                           std::string_view separator = {});
std::string formattedValue(double value, const KORVA_Format& format);

/// A number in a format, or empty when the format is not one of numbers or dates.
std::string AsString(double value, const KORVA_Format& format);

} // namespace formatter
