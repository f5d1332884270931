#include "translate/Beyond.h"

#include <algorithm>

#include <fmt/format.h>

#include "resolve/ScaleMethod.h"
#include "translate/Style.h"

namespace render {
namespace {

/// The shares of the plot's length that values lie beyond its ends.
struct Reach {
  double below;
  double above;
};
/// A hair beyond is where the end itself is rounded.
constexpr Reach hair{.below = 1e-9, .above = 1e-9};
/// As far as there is room: the labels of an axis stand below the plot and at its left.
constexpr Reach nearby{.below = 0.02, .above = 0.1};

/// Whether a value lies farther beyond an end than a share of the scale.
bool isBeyond(double value, const Dimension& dimension, const Reach& reach) {
  if (dimension.categorical || !takes(value, dimension)) return false;
  const double low = scaled(dimension.low, dimension);
  const double share = (scaled(value, dimension) - low) / (scaled(dimension.high, dimension) - low);
  const double at = dimension.isInverted ? 1 - share : share;
  return at < -reach.below || at > 1 + reach.above;
}

std::size_t countBeyond(const Element& element, std::string_view role, const Reach& reach,
                        const Chart& chart) {
  std::size_t count = 0;
  for (const Panel& panel : chart.panels)
    for (const Item& item : panel.items[element.index]) {
      const bool isMeasure = element.measuresAlong(role);
      const double value = isMeasure ? item.high : item.place();
      count += isBeyond(value, panel.along(role), reach) ? 1 : 0;
    }
  return count;
}

bool isDrawn(const Element& element) {
  return !element.isSlice && lookOf(*element.node) != Look::hidden;
}

} // namespace

bool liesFarBeyond(const Chart& chart) {
  if (chart.plot == nullptr || chart.space != nullptr) return false;
  return std::ranges::any_of(chart.elements, [&](const Element& element) {
    return !element.isSlice && (countBeyond(element, "x", nearby, chart) > 0 ||
                                countBeyond(element, "y", nearby, chart) > 0);
  });
}

void noteValuesBeyond(const Chart& chart, Notes& notes) {
  if (chart.plot == nullptr || chart.space != nullptr) return;
  const bool isCut = chart.plot->attribute("clip") == "true" || liesFarBeyond(chart);
  for (const std::string_view role : {"x", "y"})
    for (const Element& element : chart.elements) {
      const std::size_t count = isDrawn(element) ? countBeyond(element, role, hair, chart) : 0;
      if (count > 0)
        notes.add(isCut ? "Cut off^3" : "Drawn outside the axes^3",
                  {element.node->name(), role, fmt::to_string(count)});
    }
}

} // namespace render
