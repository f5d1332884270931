#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "text/Show.h"
#include "text/Wrap.h"
#include "translate/AxisTicks.h"
#include "translate/Encode.h"
#include "translate/Filling.h"
#include "translate/Groups.h"
#include "translate/NamedLegend.h"
#include "translate/Style.h"
#include "translate/Theme.h"
#include "translate/Tile.h"

namespace render {
namespace {

/// What one legend shows: the groups of a variable as points, lines or both.
struct Entry {
  const Variable* group;
  bool points = false;
  bool lines = false;
  bool bars = false;
  double opacity = 0; ///< of the bars or areas
  bool hollow = false;
  bool shapesOnly = false; ///< color tells other groups apart
  bool colorsOnly = false; ///< shape does
};

/// Whether a target asks for the groups that a variable makes of its element: all of them,
/// those of a color, or those of one of its styleBys.
bool asksFor(const Variable& variable, const Node& target, const Element& element) {
  const std::string_view aesthetic = target.attribute("aesthetic");
  if (aesthetic.empty() || aesthetic == "styleBy") return true;
  if (aesthetic == "color") return &variable == element.group;
  return std::ranges::any_of(element.node->children, [&](const Node& child) {
    return (child.kind == "styleBy" || child.kind == "color") && child.id() == aesthetic &&
           child.attribute("variable") == variable.id;
  });
}

/// Whole numbers where it is rows that are counted.
AxisTicks gradientTicks(const Dimension& colors, const Context& context) {
  constexpr int most = 5;
  if (!(colors.low < colors.high))
    return {.values = {colors.low}, .label = valueText(colors.format(), "datum.value")};
  AxisTicks ticks = axisTicks(colors, nullptr, {.numbers = most, .dates = most}, context);
  if (colors.variables.empty())
    std::erase_if(ticks.values, [](double value) { return value != std::floor(value); });
  return ticks;
}

/// A range of colors with ticks as an axis of its values has them.
void addGradient(const std::string& name, const std::string& title, const Variable* variable,
                 const Node& legend, Context& context) {
  const auto hasColors = [&](const Json& each) {
    return each.contains("fill") && each["fill"] == name;
  };
  if (std::ranges::any_of(context.parts.legends, hasColors)) return;
  Dimension colors{.role = "color"};
  if (variable != nullptr) colors.variables.push_back(variable);
  for (const Json& scale : context.parts.scales) {
    if (scale["name"] != name) continue;
    colors.low = scale["domain"][0];
    colors.high = scale["domain"][1];
  }
  const AxisTicks ticks = gradientTicks(colors, context);
  const Node* label = legend.child("label");
  context.parts.legends.push_back(
      {{"fill", name},
       {"values", ticks.values},
       {"type", "gradient"},
       {"title", legendTitle(label && !label->text.empty() ? label->text : title)},
       {"gradientLength", 160},
       {"encode",
        {{"labels",
          {{"update", {{"text", {{"signal", ticks.label}}}, {"dx", {{"value", 4}}}}}}}}}});
}

void addShadeLegend(const Element& element, const Node& legend, Context& context) {
  const Variable& shade = *element.shade;
  color(element, context); // adds the scale
  addGradient(scaleName("shade", shade.id), shade.title, &shade, legend, context);
}

void addEntry(const Element& element, const Variable& group, std::vector<Entry>& entries,
              const Context& context) {
  auto entry = std::ranges::find(entries, &group, &Entry::group);
  if (entry == entries.end()) entry = entries.insert(entry, {.group = &group});
  const std::string_view type = element.type();
  const bool isPoint = type == "point";
  const bool isLine = element.isLine();
  entry->points = entry->points || isPoint;
  entry->lines = entry->lines || isLine;
  entry->bars = entry->bars || (!isPoint && !isLine);
  const double opacity = type == "area" ? areaOpacity(element) : theme::barOpacity;
  entry->opacity = std::max(entry->opacity, opacity);
  entry->hollow = entry->hollow || (isPoint && isHollow(*element.node, context.chart));
  entry->shapesOnly = &group == element.shape;
  entry->colorsOnly = element.shape != nullptr && &group == element.group;
}

void addTarget(const Node& target, const Node& legend, std::vector<Entry>& entries,
               Context& context) {
  const Node* node = context.chart.folder->document.find(target.attribute("element"));
  if (node == nullptr) return; // a lost target
  const bool isLine = node->kind == "guide" &&
                      (node->attribute("type") == "function" || node->attribute("type") == "line");
  if (isLine) return addNamed(*node, legend, context);
  // An element that is not drawn has no entry.
  const Element* element = context.chart.find(*node);
  if (element == nullptr) return;
  if (element->method == Method::hexagons && element->type() != "point")
    return addGradient(addCountScale(*element, context), "n", nullptr, legend, context);
  if (element->shade != nullptr) addShadeLegend(*element, legend, context);
  if (element->group == nullptr && element->shade == nullptr)
    return addNamed(*node, legend, context);
  if (element->group == nullptr) return;
  const bool asksForGroup = asksFor(*element->group, target, *element);
  const bool asksForShape = element->shape != nullptr && asksFor(*element->shape, target, *element);
  if (asksForGroup) addEntry(*element, *element->group, entries, context);
  if (asksForShape) addEntry(*element, *element->shape, entries, context);
  if (!asksForGroup && !asksForShape)
    context.notes.add("Legend not drawn yet^2",
                      {target.name(), shown(target.attribute("aesthetic"))});
}

/// Labels wrapped to the legend's width.
std::string addLegendLabels(const Variable& group, Parts& parts) {
  std::string name = scaleName("legend", group.id);
  if (parts.hasScale(name)) return name;
  const auto lines = [](const std::string& label) -> Json {
    return wrap(label, {.width = theme::legendWidth, .fontSize = theme::labelSize, .lines = 3});
  };
  parts.scales.push_back(
      categoryScale(name, group.categories, labelRange(group.categories, lines)));
  return name;
}

std::string addSymbolsOnLines(const Variable& group, Parts& parts) {
  std::string name = scaleName("key", group.id);
  if (parts.hasScale(name)) return name;
  Json paths = Json::array();
  for (const theme::Symbol& symbol : theme::symbols)
    paths.push_back(theme::symbolOnLine(symbol));
  parts.scales.push_back(categoryScale(name, group.categories, std::move(paths)));
  return name;
}

/// Symbols or dashes without a color of their own; the document's title is that of the
/// colors.
Json shapeLegend(const Entry& entry, Context& context) {
  const Variable& group = *entry.group;
  Json json{{"title", legendTitle(group.title)},
            {entry.points ? "shape" : "strokeDash",
             scaleName(entry.points ? "symbol" : "dash", group.id)},
            {"symbolStrokeColor", {{"signal", "ink"}}}};
  if (entry.points)
    json["symbolFillColor"] = "transparent";
  else
    json["symbolType"] = theme::lineSymbol;
  json["encode"]["labels"]["update"]["text"] = {{"scale", addLegendLabels(group, context.parts)},
                                                {"field", "value"}};
  return json;
}

void addBarFilling(Json& json, const Variable& group, Context& context) {
  if (!isPatterned(group, context.chart)) {
    json["fill"] = scaleName("color", group.id);
    return;
  }
  json["fill"] = addFillScale(group, context);
  if (!isInColors(group, context.chart)) {
    json.erase("stroke");
    json["symbolStrokeColor"] = {{"signal", "ink"}};
  }
  json["symbolStrokeWidth"] = theme::outlineWidth;
  json["symbolSize"] = theme::swatchSize;
}

Json legendOf(const Entry& entry, const Node& legend, Context& context) {
  const Variable& group = *entry.group;
  addGroupScales(group, context.parts);
  const Node* label = legend.child("label");
  const std::string& title = label && !label->text.empty() ? label->text : group.title;

  if (entry.shapesOnly) return shapeLegend(entry, context);
  Json json{{"title", legendTitle(title)}, {"stroke", scaleName("color", group.id)}};
  if (entry.bars) {
    json["symbolType"] = theme::barSymbol;
    addBarFilling(json, group, context);
    const bool isArea = entry.opacity < theme::barOpacity;
    if (isArea && !context.chart.isPolar) json.erase("stroke"); // areas have no edge
    json["encode"]["symbols"]["update"]["fillOpacity"] = {{"value", entry.opacity}};
  } else if (entry.points) {
    if (entry.colorsOnly)
      json["symbolType"] = theme::symbols.front().path;
    else
      json["shape"] =
          entry.lines ? addSymbolsOnLines(group, context.parts) : scaleName("symbol", group.id);
    if (entry.hollow)
      json["symbolFillColor"] = "transparent";
    else
      json["fill"] = scaleName("color", group.id);
    json["encode"]["symbols"]["update"]["fillOpacity"] = {{"value", theme::fillOpacity}};
  } else {
    json["symbolType"] = theme::lineSymbol;
    if (!entry.colorsOnly && !hasPoints(group, context.chart))
      json["strokeDash"] = scaleName("dash", group.id);
  }
  json["encode"]["labels"]["update"]["text"] = {{"scale", addLegendLabels(group, context.parts)},
                                                {"field", "value"}};
  return json;
}

} // namespace

std::vector<std::string> legendTitle(const std::string& title) {
  return wrap(
      title,
      {.width = theme::legendWidth, .fontSize = theme::labelSize + 1, .lines = 4, .bold = true});
}

/// One legend for each variable that its targets are grouped by; targets without groups
/// share one.
void translateLegend(const Node& legend, Context& context) {
  std::vector<Entry> entries;
  for (const Node& child : legend.children)
    if (child.kind == "legendTarget") addTarget(child, legend, entries, context);
  for (const Entry& entry : entries) {
    context.parts.legends.push_back(legendOf(entry, legend, context));
    const std::size_t count = entry.group->categories.size();
    if (count > theme::legendEntries)
      context.notes.add(
          "First categories^3",
          {entry.group->title, fmt::to_string(theme::legendEntries - 1), fmt::to_string(count)});
  }
}

} // namespace render
