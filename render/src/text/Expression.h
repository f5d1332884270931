#pragma once

#include <string>
#include <string_view>

/// Pieces of Vega's expression language. Any text can be handed in.
namespace render {

/// A string literal of the text, in ASCII.
std::string literal(std::string_view utf8);

/// A number literal, in parentheses when it is negative.
std::string literal(double value);

/// The value of a field of the datum.
std::string datum(std::string_view field);

/// A field's name where Vega takes a path: separators lose their meaning.
std::string fieldPath(std::string_view field);

} // namespace render
