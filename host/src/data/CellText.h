#pragma once

#include <string_view>
#include <system_error>

/// What the texts of a file mean.
namespace host {

std::string_view withoutBlanks(std::string_view text); ///< at either end

/// Reads a decimal number that takes the whole text, blanks at either end
/// aside, whatever the locale. Not a number: invalid_argument; too large or too
/// small for a double: result_out_of_range; `value` is unchanged then.
std::errc readNumber(std::string_view text, double& value);

/// The digits after the decimal point of a text that readNumber takes.
int decimalsOf(std::string_view number);

} // namespace host
