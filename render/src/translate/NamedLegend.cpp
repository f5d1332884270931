#include "translate/NamedLegend.h"

#include <algorithm>

#include <fmt/format.h>

#include "text/Expression.h"
#include "text/Wrap.h"
#include "translate/Filling.h"
#include "translate/Groups.h"
#include "translate/ReferenceLook.h"
#include "translate/Style.h"
#include "translate/StyleCycle.h"
#include "translate/Theme.h"

namespace render {
namespace {

constexpr std::string_view errorBarSymbol = "M0,-1.4V1.4M-0.8,-1.4H0.8M-0.8,1.4H0.8";

/// What a legend calls an element that has no name: what it measures.
std::string nameOf(const Node& node, const Element* element) {
  const std::string_view name = node.attribute("name");
  if (!name.empty() || element == nullptr) return std::string(name);
  const Variable* measure = element->measure() != nullptr ? element->measure() : element->place();
  return measure->title;
}

Named drawnAs(const Element& element, const Context& context) {
  const Look look = lookOf(*element.node);
  Named named{.node = element.node,
              .color = hasOwnColor(element) ? ownColor(element, context.chart) : "ink"};
  const std::string_view type = element.type();
  const std::size_t shape = ownShape(element, context.chart);
  if (look == Look::capped) {
    named.shape = errorBarSymbol;
  } else if (look == Look::thin) {
    named.shape = theme::lineSymbol;
  } else if (type == "point") {
    named.shape = theme::symbols[shape % theme::symbols.size()].path;
    named.opacity = isOverFillings(element, context.chart) ? 1 : theme::fillOpacity;
    if (isHollow(*element.node, context.chart)) named.opacity = 0;
  } else if (element.isLine()) {
    named.shape = theme::lineSymbol;
    named.dash = lineDash(element, context.chart);
    if (const auto own = lineLookOf(*element.node)) {
      named.color = own->stroke;
      named.dash = own->isDashed ? theme::functionDash(0) : Json::array();
    }
  } else {
    named.shape = theme::barSymbol;
    named.opacity = type == "area" ? areaOpacity(element) : theme::barOpacity;
    // As addOutline() and filling() draw it; a band has the color of its element.
    const bool isBand = type == "area" && element.isComposed();
    if (!isBand && isPatterned(element, context.chart)) {
      named.color = "ink";
      named.filling = literal(theme::filling(theme::patternFillings().front()));
    }
  }
  return named;
}

Named guideAs(const Node& guide, const Chart& chart, const Parts& parts) {
  Named named{.node = &guide, .color = "ink", .shape = theme::lineSymbol};
  const auto found = std::ranges::find(parts.functions, &guide);
  named.dash = found == parts.functions.end()
                   ? dashOf(guide, chart)
                   : theme::functionDash(static_cast<std::size_t>(found - parts.functions.begin()));
  return named;
}

bool isDrawn(const Node& guide, const Parts& parts) {
  return std::ranges::find(parts.functions, &guide) != parts.functions.end() ||
         std::ranges::find(parts.lines, &guide) != parts.lines.end();
}

bool isKnown(const Node& node, const Parts& parts) {
  return std::ranges::find(parts.named, &node, &Named::node) != parts.named.end();
}

/// One scale a property of the entries, "stroke_named1" and its like.
Json legendOf(const std::vector<Named>& entries, std::size_t number, Parts& parts) {
  std::vector<Category> nodes;
  Json labels = Json::array(), shapes = Json::array(), dashes = Json::array(),
       opacities = Json::array();
  std::string strokes, fills;
  for (const Named& each : entries) {
    nodes.push_back({.key = std::string(each.node->id()), .label = {}});
    labels.push_back(
        wrap(each.text, {.width = theme::legendWidth, .fontSize = theme::labelSize, .lines = 3}));
    shapes.push_back(each.shape);
    dashes.push_back(each.dash);
    opacities.push_back(each.opacity);
    const std::string_view comma = strokes.empty() ? "" : ",";
    strokes += fmt::format("{}{}", comma, each.color);
    const std::string& filling = each.filling.empty() ? each.color : each.filling;
    fills += fmt::format("{}{}", comma, each.opacity > 0 ? filling : "'transparent'");
  }
  const auto add = [&](std::string_view purpose, Json range) {
    std::string name = scaleName(purpose, fmt::format("named{}", number));
    parts.scales.push_back(categoryScale(name, nodes, std::move(range)));
    return name;
  };
  Json json{{"stroke", add("stroke", {{"signal", fmt::format("[{}]", strokes)}})},
            {"fill", add("fill", {{"signal", fmt::format("[{}]", fills)}})},
            {"shape", add("shape", std::move(shapes))},
            {"strokeDash", add("dash", std::move(dashes))}};
  json["encode"]["symbols"]["update"]["fillOpacity"] = {
      {"scale", add("opacity", std::move(opacities))}, {"field", "value"}};
  json["encode"]["labels"]["update"]["text"] = {{"scale", add("label", std::move(labels))},
                                                {"field", "value"}};
  if (!entries.front().title.empty()) json["title"] = legendTitle(entries.front().title);
  return json;
}

} // namespace

void addNamed(const Node& node, const Node& legend, Context& context) {
  if (isKnown(node, context.parts)) return;
  const Element* element = context.chart.find(node);
  if (element == nullptr && !isDrawn(node, context.parts)) return;
  Named named =
      element != nullptr ? drawnAs(*element, context) : guideAs(node, context.chart, context.parts);
  named.text = nameOf(node, element);
  const Node* label = legend.child("label");
  if (label != nullptr) named.title = label->text;
  if (!named.text.empty()) context.parts.named.push_back(std::move(named));
}

void addNamedLegends(const Chart& chart, Parts& parts) {
  for (const Node* function : parts.functions) {
    if (function->attribute("name").empty() || isKnown(*function, parts)) continue;
    parts.named.push_back(guideAs(*function, chart, parts));
    parts.named.back().text = function->attribute("name");
  }
  std::size_t number = 0;
  while (!parts.named.empty()) {
    const std::string title = parts.named.front().title;
    std::vector<Named> entries, others;
    for (Named& each : parts.named)
      (each.title == title ? entries : others).push_back(std::move(each));
    parts.legends.push_back(legendOf(entries, ++number, parts));
    parts.named = std::move(others);
  }
}

} // namespace render
