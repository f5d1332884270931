#include "text/Json.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace render {
namespace {

std::string inOneLine(const Json& json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool isPlain(const Json& json) {
  return std::ranges::none_of(json, [](const Json& child) { return child.is_structured(); });
}

void layOut(const Json& json, std::size_t depth, std::string& text) {
  if (!json.is_structured() || isPlain(json)) {
    text += inOneLine(json);
    return;
  }
  text += json.is_object() ? '{' : '[';
  const char* separator = "\n";
  for (const auto& [key, value] : json.items()) {
    text.append(separator).append(depth + 1, ' ');
    if (json.is_object()) text.append(inOneLine(key)).append(": ");
    layOut(value, depth + 1, text);
    separator = ",\n";
  }
  text.append("\n").append(depth, ' ');
  text += json.is_object() ? '}' : ']';
}

} // namespace

Json jsonNumber(double value) {
  constexpr double largestExact = 9007199254740992.0;
  if (std::trunc(value) == value && std::abs(value) <= largestExact)
    return static_cast<std::int64_t>(value);
  return value;
}

std::string laidOut(const Json& json) {
  std::string text;
  layOut(json, 0, text);
  return text + "\n";
}

} // namespace render
