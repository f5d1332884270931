#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "compute/Dots.h"
#include "compute/Hexagons.h"
#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/Matrix.h"
#include "translate/Style.h"
#include "translate/StyleCycle.h"
#include "translate/SymbolSize.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"
#include "translate/Translator.h"

namespace render {
namespace {

constexpr double rimShare = 1.75; ///< of its area, for the rim that a point takes from it
constexpr double largestDot = 18; ///< of a stack, in pixels

/// Symbols whose areas go with a variable, or with the counts of cells, from `low`.
Json sizeScale(const std::string& name, double low, double high, double largest) {
  return {{"name", name},
          {"type", "linear"},
          {"domain", {jsonNumber(low), jsonNumber(high)}},
          {"range", {theme::smallestSize, largest}}};
}

Json sizeByVariable(const Element& element, Context& context) {
  const std::string name = scaleName("size", element.node->id());
  if (!context.parts.hasScale(name)) {
    double low = INFINITY;
    double high = -INFINITY;
    for (const double value : element.size->numbers) {
      low = std::fmin(low, value);
      high = std::fmax(high, value);
    }
    context.parts.scales.push_back(sizeScale(name, low, std::fmax(high, low), theme::largestSize));
  }
  return {{"scale", name}, {"field", fieldPath(element.size->id)}};
}

/// The fullest cell is as large as its hexagon is wide.
Json sizeByCount(const Element& element, Context& context) {
  const std::string name = scaleName("size", element.node->id());
  if (!context.parts.hasScale(name)) {
    double most = 1;
    for (const Panel& panel : context.chart.panels)
      for (const Item& item : panel.items[element.index])
        most = std::max(most, item.value);
    const double across = std::min(context.layout.panelWidth, context.layout.panelHeight);
    context.parts.scales.push_back(
        sizeScale(name, 0, most, std::round(std::pow(across / hexagonsAcross, 2))));
  }
  return {{"scale", name}, {"field", "value"}};
}

/// As wide as a stack of dots and as high as one of them.
Json sizeOfDot(const Element& element, const Context& context) {
  const Layout& layout = context.layout;
  const auto pixels = [&](std::string_view role, double length) {
    const Dimension& dimension = context.along(role);
    const double whole = isAcross(role, context.chart) ? layout.panelWidth : layout.panelHeight;
    return whole * length / (dimension.high - dimension.low);
  };
  double diameter = pixels(measureRole(element), 1);
  if (!element.place()->categorical)
    diameter = std::min(diameter, pixels(placeRole(element), dotWidth(element)));
  diameter = std::min(diameter, largestDot) - theme::thinWidth;
  return {{"value", jsonNumber(std::max(1.0, diameter * diameter))}};
}

Json sizeOf(const Element& element, Context& context) {
  if (element.method == Method::dots) return sizeOfDot(element, context);
  if (element.method == Method::hexagons) return sizeByCount(element, context);
  if (element.size != nullptr && element.method == Method::none)
    return sizeByVariable(element, context);
  return {{"value", symbolSize(context)}};
}

Json shapeOf(const Element& element, Context& context) {
  const Variable* shown = element.shape != nullptr ? element.shape : element.group;
  if (shown == nullptr) {
    const std::size_t index = ownShape(element, context.chart) % theme::symbols.size();
    return {{"value", theme::symbols[index].path}};
  }
  addGroupScales(*shown, context.parts);
  return {{"scale", scaleName("symbol", shown->id)}, {"field", fieldPath(shown->id)}};
}

} // namespace

/// A symbol for each row or item.
void translatePoint(const Node& node, Context& context) {
  const Element* element = context.find(node);
  if (element == nullptr) return;
  if (lookOf(node) == Look::hidden) return addLabelsAlone(*element, context);

  const Node* style = panelStyle(node, context);
  if (style != nullptr && isEmptyStyle(*style, context.chart))
    return addVariableName(*element->x, context);

  Json update = positions(*element, context);
  if (element->modifier == Modifier::dodge)
    addSlotOffset(update[channelsOf(placeRole(*element), context.chart).start], *element,
                  theme::barBand, context);
  update["size"] = sizeOf(*element, context);
  update["shape"] = shapeOf(*element, context);
  update["stroke"] = color(*element, context);
  update["strokeWidth"] = {
      {"value", symbolOutline(update["size"].value("value", 1.0 * theme::pointSize))}};
  // A transparent filling, unlike none, still takes the pointer.
  update["fill"] = isHollow(style != nullptr ? *style : node, context.chart)
                       ? Json{{"value", "transparent"}}
                       : color(*element, context);
  update["fillOpacity"] = {{"value", theme::fillOpacity}};
  if (isOverFillings(*element, context.chart) && update["fill"] == update["stroke"]) {
    update["fillOpacity"] = {{"value", 1}};
    update["stroke"] = {{"signal", "paper"}};
    if (update["size"].contains("value") && element->method != Method::dots)
      update["size"] = {{"value", rimShare * update["size"]["value"].get<double>()}};
  }
  if (isCensored(node) && element->shape == nullptr) {
    update["shape"] = {{"value", theme::crossSymbol}};
    update["stroke"] = element->group ? color(*element, context) : Json{{"signal", "ink"}};
  }
  update["tooltip"] = tooltip(*element, context);

  context.parts.data.push_back(elementData(*element, context));
  addMark(*element,
          {{"type", "symbol"},
           {"from", nullptr},
           {"clip", isClipped(context.chart)},
           {"encode", {{"update", std::move(update)}}}},
          false, context);
  addLabels(*element, context);
}

} // namespace render
