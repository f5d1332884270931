#include <algorithm>
#include <map>
#include <ranges>

#include "translate/Encode.h"
#include "translate/Filling.h"
#include "translate/PlaceOrder.h"
#include "translate/Style.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"
#include "translate/Translator.h"

namespace render {
namespace {

/// What tells the areas apart, and the order along each.
using Outline = std::map<std::vector<std::string>, std::map<double, Json>>;

Outline outlineOf(const Element& element, const Json& rows) {
  const Variable* place = element.place();
  Outline outline;
  for (const Json& row : rows) {
    std::vector<std::string> key;
    std::vector<const Variable*> telling = element.splits;
    telling.push_back(element.group);
    for (const Variable* variable : telling)
      if (variable != nullptr) key.push_back(row[variable->id].get<std::string>());
    double at = 0;
    if (place->categorical)
      at = static_cast<double>(
          std::ranges::find(place->categories, row[place->id].get<std::string>(), &Category::key) -
          place->categories.begin());
    else
      at = row["place"].get<double>();
    outline[std::move(key)].try_emplace(at, row);
  }
  return outline;
}

/// Along the upper ends and back along the lower ones; around a circle of categories each
/// comes back to where it began.
Json cornersOf(const Outline& outline, bool goesAround) {
  Json corners = Json::array();
  const auto add = [&corners](Json row, bool isLow) {
    if (isLow) row["high"] = row["low"];
    corners.push_back(std::move(row));
  };
  for (const auto& [key, rows] : outline) {
    for (const auto& [at, row] : rows)
      add(row, false);
    if (goesAround) {
      add(rows.begin()->second, false);
      add(rows.begin()->second, true);
    }
    for (const auto& [at, row] : rows | std::views::reverse)
      add(row, true);
  }
  return corners;
}

void addPolarArea(const Element& element, Context& context) {
  Json data = elementData(element, context);
  data["values"] = cornersOf(outlineOf(element, data["values"]), element.place()->categorical);
  Json update = positions(element, context);
  update["interpolate"] = {{"value", "linear-closed"}};
  // Areas that lie on each other all have to show.
  update["fill"] = color(element, context);
  update["fillOpacity"] = {
      {"value", isStack(element.modifier) ? theme::areaOpacity : theme::areaOpacity / 2}};
  update["stroke"] = color(element, context);
  update["strokeWidth"] = {{"value", theme::thinWidth}};
  update["tooltip"] = seriesTooltip(element, context);
  context.parts.data.push_back(std::move(data));
  addMark(element,
          {{"type", "line"},
           {"from", nullptr},
           {"walk", {{"whole", true}}},
           {"encode", {{"update", std::move(update)}}}},
          true, context);
}

/// A band has no pattern, which would hide what it is about.
void fill(Json& update, const Element& element, Context& context) {
  update["fill"] = element.isComposed() ? color(element, context) : filling(element, context);
  if (!element.isComposed()) addOutline(update, element, context);
  update["fillOpacity"] = {{"value", areaOpacity(element)}};
}

} // namespace

/// An area from low to high along the places of each group.
void translateArea(const Node& node, Context& context) {
  const Element* element = context.find(node);
  if (element == nullptr || lookOf(node) == Look::hidden) return;
  if (context.chart.isPolar) return addPolarArea(*element, context);
  const std::string_view place = placeRole(*element);
  const std::string_view measure = measureRole(*element);
  const Channels across = channelsOf(place, context.chart);
  const Channels along = channelsOf(measure, context.chart);
  Json update{{across.start, position(*element, place, "place", context)},
              {along.start, {{"scale", measure}, {"field", "high"}}},
              {along.end, {{"scale", measure}, {"field", "low"}}}};
  if (!isAcross(place, context.chart)) update["orient"] = {{"value", "horizontal"}};
  if (const std::string_view steps = interpolationOf(node); steps != "linear")
    update["interpolate"] = {{"value", steps}};
  fill(update, *element, context);
  update["tooltip"] = tooltip(*element, context);
  update["description"] = seriesDescription(*element, context);

  Json data = elementData(*element, context);
  sortAlongPlace(*element, context, data);
  context.parts.data.push_back(std::move(data));
  addMark(*element,
          {{"type", "area"},
           {"from", nullptr},
           {"clip", isClipped(context.chart)},
           {"encode", {{"update", std::move(update)}}}},
          true, context);
  addLabels(*element, context);
}

} // namespace render
