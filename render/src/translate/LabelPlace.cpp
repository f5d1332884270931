#include "translate/LabelPlace.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <fmt/format.h>

#include "resolve/ScaleMethod.h"
#include "text/PlainValue.h"
#include "text/Wrap.h"
#include "translate/Encode.h"
#include "translate/Theme.h"

namespace render {
namespace {

std::string categoryLabel(const Variable& variable, const std::string& key) {
  const auto found = std::ranges::find(variable.categories, key, &Category::key);
  return found == variable.categories.end() ? key : found->label;
}

bool asksForInside(const Element& element) {
  return std::ranges::any_of(element.node->children, [](const Node& child) {
    return child.kind == "labeling" && child.attribute("style").find("inside") != std::string::npos;
  });
}

double panelLength(std::string_view role, const Context& context) {
  return isAcross(role, context.chart) ? context.layout.panelWidth : context.layout.panelHeight;
}

/// The pixels from one field of a row to another.
double lengthOf(const Json& row, const char* from, const char* to, std::string_view role,
                const Context& context) {
  const Dimension& dimension = context.along(role);
  const auto at = [&](const char* field) { return scaled(row[field].get<double>(), dimension); };
  const double range = scaled(dimension.high, dimension) - scaled(dimension.low, dimension);
  return std::abs(at(to) - at(from)) / range * panelLength(role, context);
}

double thicknessOf(const Element& element, const Json& row, const Context& context) {
  const std::string_view role = placeRole(element);
  const Dimension& place = context.along(role);
  if (!place.categorical) return lengthOf(row, "from", "to", role, context);
  const std::size_t slots = slotCount(element, context);
  const double share = slots > 1 ? theme::slotShare / static_cast<double>(slots) : 1;
  return panelLength(role, context) / static_cast<double>(place.categories.size()) *
         theme::barBand * share;
}

/// Whether a bar holds its label.
bool holds(const Element& element, const Json& row, const LabelSize& label,
           const Context& context) {
  constexpr double gap = 4;
  const std::string_view role = measureRole(element);
  const double length = lengthOf(row, "low", "high", role, context);
  const double thickness = thicknessOf(element, row, context);
  const bool liesAcross = isAcross(role, context.chart);
  return (liesAcross ? length : thickness) >= label.width + gap &&
         (liesAcross ? thickness : length) >= label.height + gap;
}

/// Whether a piece of a pie holds its label: it is as wide there as the label is.
bool sliceHolds(const Element& element, const Json& row, const LabelSize& label,
                const Context& context) {
  const double angle =
      (row["high"].get<double>() - row["low"].get<double>()) * turnsOf(element, context);
  const double radius = std::min(context.layout.panelWidth, context.layout.panelHeight) / 2;
  if (angle >= std::numbers::pi) return label.width < radius;
  return 2 * radius * sliceShare * std::sin(angle / 2) >= std::hypot(label.width, label.height);
}

} // namespace

LabelSize labelSize(const Element& element, const Json& row, const Context& context) {
  double width = 0;
  for (const Variable* variable : element.labels) {
    const Json value = row.value(variable->id, row.value("value", Json()));
    std::string text;
    if (value.is_string()) text = categoryLabel(*variable, value.get<std::string>());
    if (value.is_number())
      text = PlainValue(variable->format, context.chart.folder->manifest)(value.get<double>());
    width = std::max(width, textWidth(text, labelFontSize));
  }
  return {.width = width, .height = labelLineHeight * static_cast<double>(element.labels.size())};
}

double turnsOf(const Element& element, const Context& context) {
  double all = 0;
  for (const Item& item : context.panel().items[element.index])
    all = std::max(all, item.high);
  return all > 0 ? 2 * std::numbers::pi / all : 0;
}

LabelPlaces placeLabels(const Element& element, Context& context) {
  LabelPlaces places;
  const bool isPart = !element.isSlice && isStack(element.modifier);
  const bool wantsInside = isPart || asksForInside(element);
  if (!wantsInside) return places;
  for (Json& row : context.parts.data.back()["values"]) {
    const LabelSize label = labelSize(element, row, context);
    const bool fits = element.isSlice ? sliceHolds(element, row, label, context)
                                      : holds(element, row, label, context);
    if (fits) {
      row["label"] = "inside";
      ++places.inside;
    } else if (isPart) {
      row["label"] = "none";
      ++places.none;
    }
  }
  if (places.none > 0)
    context.notes.add("No room for labels^2", {element.node->name(), fmt::to_string(places.none)});
  return places;
}

} // namespace render
