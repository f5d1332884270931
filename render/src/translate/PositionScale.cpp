#include "translate/PositionScale.h"

#include <algorithm>
#include <numbers>

#include "translate/Encode.h"
#include "translate/Groups.h"

namespace render {
namespace {

/// From one end of the panel to the other, or as far as the mappings say. Categories
/// along y begin at the top.
Json rangeOf(const Dimension& dimension, const Context& context) {
  const bool across = isAcross(dimension.role, context.chart);
  const Layout& layout = context.layout;
  if (context.chart.isPolar) {
    const double radius = std::min(layout.panelWidth, layout.panelHeight) / 2;
    return {0, dimension.role == "x" ? 2 * std::numbers::pi : radius};
  }
  const bool isWhole = dimension.lowerMapping == 0 && dimension.upperMapping == 1;
  if (isWhole && !context.chart.facets.isSplit()) return across ? "width" : "height";
  const double length = across ? layout.panelWidth : layout.panelHeight;
  const double low = dimension.lowerMapping * length;
  const double high = dimension.upperMapping * length;
  if (across || dimension.categorical) return {jsonNumber(low), jsonNumber(high)};
  return {jsonNumber(length - low), jsonNumber(length - high)};
}

struct TypeName {
  ScaleType type;
  const char* name;
};
constexpr TypeName typeNames[] = {{ScaleType::linear, "linear"},
                                  {ScaleType::log, "log"},
                                  {ScaleType::symmetricLog, "symlog"},
                                  {ScaleType::power, "pow"}};

Json continuousScale(const Dimension& dimension, Json range) {
  Json scale{{"name", dimension.role},
             {"type", std::ranges::find(typeNames, dimension.type, &TypeName::type)->name},
             {"domain", Json::array({jsonNumber(dimension.low), jsonNumber(dimension.high)})},
             {"range", std::move(range)},
             {"zero", false}};
  if (dimension.type == ScaleType::log) scale["base"] = dimension.parameter;
  if (dimension.type == ScaleType::power) scale["exponent"] = dimension.parameter;
  return scale;
}

} // namespace

Json positionScale(std::string_view role, const Context& context) {
  const Dimension& dimension = context.along(role);
  Json range = rangeOf(dimension, context);
  Json scale;
  if (dimension.categorical) {
    scale = categoryScale(std::string(role), dimension.categories, std::move(range));
    scale["type"] = dimension.isBanded ? "band" : "point";
    scale["padding"] = dimension.isBanded ? 0 : 0.5;
  } else {
    scale = continuousScale(dimension, std::move(range));
  }
  if (dimension.isInverted) scale["reverse"] = true;
  return scale;
}

Json panelGroup(Context& context) {
  const Layout& layout = context.layout;
  const Panel& panel = context.panel();
  Json update{{"x", {{"value", layout.left[panel.column]}}},
              {"y", {{"value", layout.top[panel.row]}}},
              {"width", {{"value", layout.panelWidth}}},
              {"height", {{"value", layout.panelHeight}}}};
  if (!context.chart.facets.areAlongAxis) update["stroke"] = {{"signal", "faint"}};
  return {{"type", "group"},
          {"encode", {{"update", std::move(update)}}},
          {"scales", Json::array({positionScale("x", context), positionScale("y", context)})},
          {"axes", std::move(context.parts.axes)},
          {"marks", context.parts.takeMarks()}};
}

} // namespace render
