#include "translate/ItemPlace.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "resolve/ScaleMethod.h"
#include "translate/Encode.h"
#include "translate/Theme.h"

namespace render {
namespace {

/// Along a categorical dimension, 0 to 1.
double shareOfCategory(const Element& element, const Item& item, const Dimension& dimension) {
  const Variable* variable = element.along(dimension.role);
  double index = 0;
  if (variable != nullptr) {
    const auto found =
        std::ranges::find(dimension.categories, (*variable->texts)[item.row], &Category::key);
    index = static_cast<double>(found - dimension.categories.begin());
  }
  return (index + 0.5) / static_cast<double>(dimension.categories.size());
}

double valueOf(const Element& element, const Item& item, std::string_view role) {
  if (element.isPlain()) return element.along(role)->numbers[item.row];
  return role == placeRole(element) ? item.place() : item.high;
}

/// As the dimension's range goes.
double mapped(double share, const Dimension& dimension) {
  if (dimension.isInverted) share = 1 - share;
  return dimension.lowerMapping + share * (dimension.upperMapping - dimension.lowerMapping);
}

double shareOfValue(double value, const Dimension& dimension) {
  const double low = scaled(dimension.low, dimension);
  return mapped((scaled(value, dimension) - low) / (scaled(dimension.high, dimension) - low),
                dimension);
}

/// Where along the range of its scale an item stands, 0 to 1.
double shareOf(const Element& element, const Item& item, const Dimension& dimension) {
  if (dimension.categorical) return mapped(shareOfCategory(element, item, dimension), dimension);
  return shareOfValue(valueOf(element, item, dimension.role), dimension);
}

Spot spotOf(const Element& element, const Item& item, const Context& context) {
  const Layout& layout = context.layout;
  const double x = shareOf(element, item, context.along("x"));
  const double y = shareOf(element, item, context.along("y"));
  if (context.chart.isPolar) {
    const double radius = y * std::min(layout.panelWidth, layout.panelHeight) / 2;
    const double angle = 2 * std::numbers::pi * x;
    return {.x = layout.panelWidth / 2 + radius * std::sin(angle),
            .y = layout.panelHeight / 2 - radius * std::cos(angle)};
  }
  const std::string_view acrossRole = context.chart.isTransposed ? "y" : "x";
  const std::string_view downRole = context.chart.isTransposed ? "x" : "y";
  const double across = acrossRole == "x" ? x : y;
  const double along = downRole == "x" ? x : y;
  const double down = context.along(downRole).categorical ? along : 1 - along;
  return {.x = across * layout.panelWidth, .y = down * layout.panelHeight};
}

/// How far aside the group of an item stands.
double slotOffset(const Element& element, const Item& item, const std::set<double>& slots,
                  const Context& context) {
  const Dimension& place = context.along(placeRole(element));
  const bool isAcrossPlace = isAcross(placeRole(element), context.chart);
  const double length = isAcrossPlace ? context.layout.panelWidth : context.layout.panelHeight;
  const double band = length / static_cast<double>(place.categories.size()) * theme::barBand;
  const auto slot = std::distance(slots.begin(), slots.find(element.group->codes[item.row]));
  return band * ((static_cast<double>(slot) + 0.5) / static_cast<double>(slots.size()) - 0.5);
}

} // namespace

std::vector<Spot> spotsOf(const Element& element, const Context& context) {
  const std::set<double> slots = slotsOf(element, context);
  std::vector<Spot> spots;
  for (const Item* item : drawnItems(element, context)) {
    spots.push_back(spotOf(element, *item, context));
    if (slots.size() < 2 || context.chart.isPolar) continue;
    const double offset = slotOffset(element, *item, slots, context);
    (isAcross(placeRole(element), context.chart) ? spots.back().x : spots.back().y) += offset;
  }
  return spots;
}

double placeOf(double value, std::string_view role, const Context& context) {
  const double share = shareOfValue(value, context.along(role));
  const Layout& layout = context.layout;
  return isAcross(role, context.chart) ? share * layout.panelWidth
                                       : (1 - share) * layout.panelHeight;
}

std::vector<double> groupOf(const Element& element, const Item& item) {
  std::vector<double> group{static_cast<double>(item.member)};
  if (element.group != nullptr) group.push_back(element.group->codes[item.row]);
  for (const Variable* split : element.splits)
    group.push_back(split->codes[item.row]);
  return group;
}

} // namespace render
