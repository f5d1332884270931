#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "resolve/Ticks.h"
#include "text/Wrap.h"
#include "translate/Groups.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {
namespace {

/// The axis's own label, else the titles of the variables drawn along it.
std::string titleOf(const Node& axis, const Dimension& dimension) {
  const Node* label = axis.child("label");
  if (label != nullptr) return label->text;
  std::string title;
  for (const Variable* variable : dimension.variables) {
    if (title.find(variable->title) != std::string::npos) continue;
    if (!title.empty()) title += ", ";
    title += variable->title;
  }
  return title;
}

void labelNumbers(Json& axis, const Dimension& dimension) {
  constexpr int ticksAlongX = 9;
  constexpr int ticksAlongY = 7;
  const Ticks ticks =
      ticksWithin(dimension.low, dimension.high, dimension.role == "x" ? ticksAlongX : ticksAlongY);
  const double magnitude = std::max(std::abs(dimension.low), std::abs(dimension.high));
  const auto& format =
      dimension.variables.empty() ? std::nullopt : dimension.variables.front()->format;
  axis["values"] = Json::array();
  for (const double value : ticks.values)
    axis["values"].push_back(jsonNumber(value));
  axis["encode"]["labels"]["update"]["text"] = {
      {"signal", tickText(format, "datum.value", ticks.decimals, magnitude)}};
}

void labelCategories(Json& axis, const Dimension& dimension) {
  axis["encode"]["labels"]["update"]["text"] = {{"scale", scaleName("label", dimension.role)},
                                                {"field", "value"}};
  axis["labelLimit"] = theme::legendWidth;
  if (dimension.role == "y") return;
  double width = 0;
  for (const Category& category : dimension.categories)
    width = std::max(width, textWidth(category.label, theme::labelSize));
  const double room = theme::plotWidth / static_cast<double>(dimension.categories.size());
  if (width < room) return;
  axis["labelAngle"] = -45;
  axis["labelAlign"] = "right";
  axis["labelBaseline"] = "middle";
}

Json axisOf(const Node& axis, const Dimension& dimension) {
  const bool alongX = dimension.role == "x";
  const bool opposite = axis.attribute("opposite") == "true";
  const char* nearSide = alongX ? "bottom" : "left";
  const char* farSide = alongX ? "top" : "right";
  const char* side = opposite ? farSide : nearSide;
  const Node* ticks = axis.child("majorTicks");
  Json json{{"scale", dimension.role},
            {"orient", side},
            {"title",
             wrap(titleOf(axis, dimension), {.width = alongX ? theme::plotWidth : theme::plotHeight,
                                             .fontSize = theme::axisTitleSize,
                                             .lines = 3})},
            {"grid", ticks != nullptr && ticks->child("gridLines") != nullptr},
            {"ticks", ticks != nullptr},
            {"labels", ticks != nullptr}};
  if (dimension.categorical)
    labelCategories(json, dimension);
  else
    labelNumbers(json, dimension);
  return json;
}

} // namespace

/// The axes of a dimension; its scale is there whether it has a node or not.
void translateDimension(const Node& node, Context& context) {
  const Dimension* dimension = context.chart.dimension(node.attribute("role"));
  if (dimension == nullptr) return;
  for (const Node& child : node.children)
    if (child.kind == "axis") context.parts.axes.push_back(axisOf(child, *dimension));
}

} // namespace render
