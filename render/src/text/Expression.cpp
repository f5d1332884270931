#include "text/Expression.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace render {

std::string literal(std::string_view utf8) {
  // A JSON string in ASCII is a string of the expression language as well, line
  // and paragraph separators included.
  return nlohmann::json(utf8).dump(-1, ' ', true, nlohmann::json::error_handler_t::replace);
}

std::string literal(double value) {
  return value < 0 ? fmt::format("({})", value) : fmt::format("{}", value);
}

std::string datum(std::string_view field) { return fmt::format("datum[{}]", literal(field)); }

std::string fieldPath(std::string_view field) {
  std::string path;
  for (const char c : field) {
    if (c == '.' || c == '[' || c == ']' || c == '\\' || c == '"' || c == '\'') path += '\\';
    path += c;
  }
  return path;
}

} // namespace render
