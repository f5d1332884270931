#include "translate/Beyond.h"

#include <fmt/format.h>

#include "resolve/ScaleMethod.h"
#include "translate/Style.h"

namespace render {
namespace {

bool isBeyond(double value, const Dimension& dimension) {
  if (dimension.categorical || !takes(value, dimension)) return false;
  // A hair beyond is where the end itself is rounded.
  const double hair = (dimension.high - dimension.low) * 1e-9;
  return value < dimension.low - hair || value > dimension.high + hair;
}

std::size_t countBeyond(const Element& element, std::string_view role, const Chart& chart) {
  std::size_t count = 0;
  for (const Panel& panel : chart.panels)
    for (const Item& item : panel.items[element.index]) {
      const bool isMeasure = element.measuresAlong(role);
      const double value = isMeasure ? item.high : item.place();
      count += isBeyond(value, panel.along(role)) ? 1 : 0;
    }
  return count;
}

} // namespace

void noteValuesBeyond(const Chart& chart, Notes& notes) {
  if (chart.plot == nullptr || chart.space != nullptr) return;
  const bool isCut = chart.plot->attribute("clip") == "true";
  for (const std::string_view role : {"x", "y"})
    for (const Element& element : chart.elements) {
      const bool isDrawn = !element.isSlice && lookOf(*element.node) != Look::hidden;
      const std::size_t count = isDrawn ? countBeyond(element, role, chart) : 0;
      if (count > 0)
        notes.add(isCut ? "Cut off^3" : "Drawn outside the axes^3",
                  {element.node->name(), role, fmt::to_string(count)});
    }
}

} // namespace render
