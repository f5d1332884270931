#include "translate/SymbolSize.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <utility>

#include "translate/ItemPlace.h"
#include "translate/Space.h"
#include "translate/Style.h"
#include "translate/Theme.h"

namespace render {
namespace {

constexpr int smallest = 14;
constexpr double cell = 12;            ///< of the grid that points are counted in
constexpr double usualCrowding = 0.75; ///< up to which symbols have the usual size

bool isUnsized(const Element& element) {
  return element.type() == "point" && element.size == nullptr &&
         (element.method == Method::none || element.method == Method::summary) &&
         lookOf(*element.node) != Look::hidden;
}

/// A place on a grid that wide.
std::pair<int, int> on(double grid, const Spot& spot) {
  constexpr double farthest = 1e6;
  const auto place = [=](double pixels) {
    return std::isfinite(pixels)
               ? static_cast<int>(std::floor(std::clamp(pixels, -farthest, farthest) / grid))
               : 0;
  };
  return {place(spot.x), place(spot.y)};
}

/// How often symbols of the usual size would cover the cell that the average point lies in.
/// Points at one pixel count once: smaller ones would hide each other all the same.
double crowding(const Context& context) {
  std::set<std::pair<int, int>> pixels;
  std::map<std::pair<int, int>, double> cells;
  for (const Element& element : context.panel().elements) {
    if (!isUnsized(element)) continue;
    const std::vector<Spot> spots =
        context.chart.space != nullptr ? spotsInSpace(element, context) : spotsOf(element, context);
    for (const Spot& spot : spots)
      if (pixels.insert(on(1, spot)).second) ++cells[on(cell, spot)];
  }
  double squares = 0;
  for (const auto& [place, count] : cells)
    squares += count * count;
  if (cells.empty()) return 0;
  return squares / static_cast<double>(pixels.size()) * theme::pointSize / (cell * cell);
}

} // namespace

int symbolSize(Context& context) {
  if (context.parts.symbolSize > 0) return context.parts.symbolSize;
  double most = usualCrowding;
  const std::size_t drawn = context.panelIndex;
  for (context.panelIndex = 0; context.panelIndex < context.chart.panels.size();
       ++context.panelIndex)
    most = std::max(most, crowding(context));
  context.panelIndex = drawn;
  context.parts.symbolSize =
      std::max(smallest, static_cast<int>(std::lround(theme::pointSize * usualCrowding / most)));
  return context.parts.symbolSize;
}

double symbolOutline(double size) {
  constexpr double thinnest = 0.75;
  const double share = std::sqrt(std::min(1.0, size / theme::pointSize));
  return std::max(thinnest, std::round(theme::thinWidth * share * 100) / 100);
}

} // namespace render
