#include "translate/Filling.h"

#include <algorithm>

#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/Theme.h"

namespace render {

bool isPatterned(const Element& element, const Chart& chart) {
  const bool isShaded = element.shade != nullptr && element.method == Method::none;
  if (isShaded) return false;
  return element.group != nullptr ? isPatterned(*element.group, chart)
                                  : theme::of(chart).hasPatterns;
}

bool isPatterned(const Variable& group, const Chart& chart) {
  return theme::of(chart).hasPatterns ||
         std::ranges::any_of(chart.elements, [&group](const Element& element) {
           return element.group == &group && element.hasPatterns;
         });
}

bool hasPatterns(const Chart& chart) {
  return theme::of(chart).hasPatterns || std::ranges::any_of(chart.elements, &Element::hasPatterns);
}

Json filling(const Element& element, Context& context) {
  if (!isPatterned(element, context.chart)) return color(element, context);
  if (element.group == nullptr)
    return {{"value", theme::filling(theme::patternFillings().front())}};
  addFillScale(*element.group, context);
  return {{"scale", scaleName("fill", element.group->id)}, {"field", fieldPath(element.group->id)}};
}

void addOutline(Json& update, const Element& element, const Context& context) {
  if (!isPatterned(element, context.chart)) return;
  update["stroke"] = {{"signal", "ink"}};
  update["strokeWidth"] = {{"value", theme::outlineWidth}};
}

std::string addFillScale(const Variable& group, Context& context) {
  std::string name = scaleName("fill", group.id);
  if (context.parts.hasScale(name)) return name;
  Json range = Json::array();
  for (const std::string_view each : theme::patternFillings())
    range.push_back(theme::filling(each));
  context.parts.scales.push_back(categoryScale(name, group.categories, std::move(range)));
  return name;
}

} // namespace render
