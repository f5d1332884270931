#include "translate/Filling.h"

#include <algorithm>

#include <fmt/format.h>

#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/Theme.h"

namespace render {
namespace {

std::size_t fillingsOf(const Variable& group) {
  return std::min(group.categories.size(), theme::coloredFillings);
}

Json coloredRange(const Variable& group, const Chart& chart) {
  const auto list = [&](bool isDark) {
    Json fillings = Json::array();
    for (std::size_t i = 0; i < fillingsOf(group); ++i)
      fillings.push_back(theme::coloredFilling(theme::of(chart), i, isDark));
    return fillings.dump();
  };
  return {{"signal", fmt::format("dark?{}:{}", list(true), list(false))}};
}

} // namespace

bool isPatterned(const Element& element, const Chart& chart) {
  const bool isShaded = element.shade != nullptr && element.method == Method::none;
  if (isShaded) return false;
  return element.group != nullptr ? isPatterned(*element.group, chart)
                                  : theme::of(chart).hasPatterns;
}

bool isPatterned(const Variable& group, const Chart& chart) {
  return theme::of(chart).hasPatterns ||
         std::ranges::any_of(chart.elements, [&group](const Element& element) {
           return element.group == &group && (element.hasPatterns || element.hasColoredPatterns);
         });
}

bool isInColors(const Variable& group, const Chart& chart) {
  const auto isOfGroup = [&group](const Element& element) { return element.group == &group; };
  return !theme::of(chart).hasPatterns &&
         std::ranges::any_of(chart.elements,
                             [&](const Element& element) {
                               return isOfGroup(element) && element.hasColoredPatterns;
                             }) &&
         std::ranges::none_of(chart.elements, [&](const Element& element) {
           return isOfGroup(element) && element.hasPatterns;
         });
}

Json patternsOf(const Chart& chart) {
  const theme::Theme& theme = theme::of(chart);
  std::size_t colored = 0;
  bool hasPlain = theme.hasPatterns;
  for (const Element& element : chart.elements) {
    if (element.group == nullptr || !isPatterned(*element.group, chart)) continue;
    if (isInColors(*element.group, chart))
      colored = std::max(colored, fillingsOf(*element.group));
    else
      hasPlain = true;
  }
  Json patterns = hasPlain ? theme::patterns() : Json::array();
  for (Json& each : theme::coloredPatterns(theme, colored))
    patterns.push_back(std::move(each));
  return patterns;
}

Json filling(const Element& element, Context& context) {
  if (!isPatterned(element, context.chart)) return color(element, context);
  if (element.group == nullptr)
    return {{"value", theme::filling(theme::patternFillings().front())}};
  addFillScale(*element.group, context);
  return {{"scale", scaleName("fill", element.group->id)}, {"field", fieldPath(element.group->id)}};
}

void addOutline(Json& update, const Element& element, Context& context) {
  if (!isPatterned(element, context.chart)) return;
  const bool hasColor = element.group != nullptr && isInColors(*element.group, context.chart);
  update["stroke"] = hasColor ? color(element, context) : Json{{"signal", "ink"}};
  update["strokeWidth"] = {{"value", theme::outlineWidth}};
}

std::string addFillScale(const Variable& group, Context& context) {
  std::string name = scaleName("fill", group.id);
  if (context.parts.hasScale(name)) return name;
  Json range = Json::array();
  if (isInColors(group, context.chart))
    range = coloredRange(group, context.chart);
  else
    for (const std::string_view each : theme::patternFillings())
      range.push_back(theme::filling(each));
  context.parts.scales.push_back(categoryScale(name, group.categories, std::move(range)));
  return name;
}

} // namespace render
