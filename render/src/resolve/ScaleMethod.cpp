#include "resolve/ScaleMethod.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "compute/Bins.h"
#include "text/Show.h"

namespace render {
namespace {

constexpr double usualBase = 10;
constexpr double usualExponent = 0.5;

struct NamedType {
  std::string_view name;
  ScaleType type;
};
constexpr NamedType methods[] = {{"linear", ScaleType::linear},
                                 {"log", ScaleType::log},
                                 {"safeLog", ScaleType::log},
                                 {"power", ScaleType::power},
                                 {"exponent", ScaleType::power}};

double parameterOr(const Node& scale, std::string_view name, double usual, Notes& notes) {
  const std::string_view text = parameter(scale, name);
  const double value = numberOf(text);
  constexpr double largest = 100;
  if (value > (name == "base" ? 1 : 0) && value <= largest) return value;
  if (!text.empty())
    notes.add("Usual takes its place^4", {scale.name(), name, shown(text), fmt::to_string(usual)});
  return usual;
}

} // namespace

void readScale(Dimension& dimension, const Node* node, Notes& notes) {
  const Node* scale = node != nullptr ? node->child("scale") : nullptr;
  if (scale == nullptr) return;
  dimension.isInverted = scale->attribute("invert") == "true";
  const std::string_view name = scale->attribute("method");
  const auto* const method = std::ranges::find(methods, name, &NamedType::name);
  if (method == std::end(methods)) {
    const bool isPlain = name.empty() || name == "categorical";
    if (!isPlain) notes.add("Scale not drawn^1", {shown(name)});
    return;
  }
  if (dimension.categorical) return;
  dimension.type = method->type;
  const bool isPower = method->type == ScaleType::power;
  dimension.parameter = isPower ? parameterOr(*scale, "exponent", usualExponent, notes)
                                : parameterOr(*scale, "base", usualBase, notes);
  const bool isSafe = name == "safeLog" || parameter(*scale, "safe") == "true";
  // Until the values are known; see chooseLogarithm().
  if (method->type == ScaleType::log && isSafe) dimension.type = ScaleType::symmetricLog;
}

void chooseLogarithm(double low, Dimension& dimension) {
  if (dimension.type == ScaleType::symmetricLog && low > 0) dimension.type = ScaleType::log;
}

bool takes(double value, const Dimension& dimension) {
  return dimension.type != ScaleType::log || value > 0;
}

bool beginsWithScale(const Element& element, const Item& item, const Dimension& place) {
  const bool isBar = element.type() == "interval" || element.type() == "schema";
  return isBar && item.from < item.to && !takes(item.from, place) && takes(item.to, place);
}

double scaled(double value, const Dimension& dimension) {
  switch (dimension.type) {
  case ScaleType::log:
    return std::log(value);
  case ScaleType::symmetricLog:
    return std::copysign(std::log1p(std::abs(value)), value);
  case ScaleType::power:
    return std::copysign(std::pow(std::abs(value), dimension.parameter), value);
  case ScaleType::linear:
    break;
  }
  return value;
}

double unscaled(double length, const Dimension& dimension) {
  switch (dimension.type) {
  case ScaleType::log:
    return std::exp(length);
  case ScaleType::symmetricLog:
    return std::copysign(std::expm1(std::abs(length)), length);
  case ScaleType::power:
    return std::copysign(std::pow(std::abs(length), 1 / dimension.parameter), length);
  case ScaleType::linear:
    break;
  }
  return length;
}

} // namespace render
