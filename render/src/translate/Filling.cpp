#include "translate/Filling.h"

#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/Theme.h"

namespace render {

bool isPatterned(const Element& element, const Chart& chart) {
  const bool isShaded = element.shade != nullptr && element.method == Method::none;
  return !theme::of(chart).fillings.empty() && !isShaded;
}

Json filling(const Element& element, Context& context) {
  if (!isPatterned(element, context.chart)) return color(element, context);
  const theme::Theme& theme = theme::of(context.chart);
  if (element.group == nullptr) return {{"value", theme::filling(theme.fillings.front())}};
  addFillScale(*element.group, context);
  return {{"scale", scaleName("fill", element.group->id)}, {"field", fieldPath(element.group->id)}};
}

void addOutline(Json& update, const Context& context) {
  if (theme::of(context.chart).fillings.empty()) return;
  update["stroke"] = {{"signal", "ink"}};
  update["strokeWidth"] = {{"value", theme::outlineWidth}};
}

std::string addFillScale(const Variable& group, Context& context) {
  std::string name = scaleName("fill", group.id);
  if (context.parts.hasScale(name)) return name;
  Json range = Json::array();
  for (const std::string_view each : theme::of(context.chart).fillings)
    range.push_back(theme::filling(each));
  context.parts.scales.push_back(categoryScale(name, group.categories, std::move(range)));
  return name;
}

} // namespace render
