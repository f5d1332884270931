#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "resolve/DateFormat.h"
#include "resolve/NumberFormat.h"

namespace render {

/// How the values of a variable are shown; a variable without a format shows the
/// shortest texts of its numbers.
using Format = std::variant<std::monostate, NumberFormat, DateFormat>;

/// Reads the format of a "variable" node.
Format readFormat(const Node& variable, const NumberSigns& signs, Notes& notes);

/// A Vega expression for the text of `value` (itself an expression).
std::string valueText(const Format& format, std::string_view value);

} // namespace render
