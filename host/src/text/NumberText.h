#pragma once

#include <string>
#include <string_view>

namespace host {

inline constexpr int scientificFormat = 17;

/// A number in a display format of numbers; a code without a look of its own is a
/// plain number. The rules are formatter::formattedValue's.
std::string numberText(double value, int code, int width, int decimals, std::string_view separator);

} // namespace host
