#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "read/ChartFolder.h"

namespace render {

/// A formula that cannot be read: what was met, and at which character.
class FormulaError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// Translates a function of x into a Vega expression, with `x` for its argument.
///
///   sum     = [ "-" | "+" ] product { ( "+" | "-" ) product }
///   product = power { ( "*" | "/" ) power }
///   power   = operand [ "**" exponent ]            (binds to the right)
///   operand = number | "x" | "(" sum ")" | function "(" argument ")"
///
/// A sign may also stand before an operand or an exponent; it binds less than
/// "**", as in -2**2 = -4. Functions: exp, log (natural), and datetodouble of a
/// quoted date and time, which counts seconds since 14 October 1582, as date
/// values do. Throws FormulaError.
std::string translateFormula(std::string_view formula, std::string_view x);

/// The formula as people read it: its numbers in four significant digits, with a decimal
/// sign of the language, and differences in place of sums with what is negative.
std::string roundedFormula(std::string_view formula, const NumberSigns& signs);

} // namespace render
