#include "translate/CategoryLabels.h"

#include <algorithm>
#include <functional>
#include <variant>

#include <fmt/format.h>

#include "text/Expression.h"
#include "text/Wrap.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/Theme.h"

namespace render {
namespace {

constexpr double lineHeight = theme::labelSize + 2;
constexpr std::size_t mostLines = 3;

struct LabelLayout {
  int width; ///< of a label, in pixels
  std::size_t lines;
  int angle = 0;

  WrapLimits limits() const {
    return {.width = width, .fontSize = theme::labelSize, .lines = lines};
  }
};

bool isBlank(const Category& category) {
  return category.expression.empty() && category.label.find_first_not_of(' ') == std::string::npos;
}

/// How many lines fit into the room of a category.
std::size_t linesIn(double room) {
  return std::clamp(static_cast<std::size_t>(room / lineHeight), std::size_t{1}, mostLines);
}

bool fits(const Category& category, const LabelLayout& layout, double widthOfComputed) {
  if (!category.expression.empty()) return widthOfComputed <= layout.width;
  return wrapsWhole(category.label, layout.limits());
}

LabelLayout layoutOf(const Dimension& dimension, bool isStaggered, const Context& context) {
  constexpr int gap = 10;
  constexpr double slant = 1.42; // lines at 45 degrees lie that much farther apart
  const auto labelled = std::ranges::count_if(dimension.categories, std::not_fn(isBlank));
  const double count = std::max(1.0, static_cast<double>(labelled));
  if (!isAcross(dimension.role, context.chart))
    return {.width = theme::legendWidth, .lines = linesIn(context.layout.panelHeight / count)};

  const double room = context.layout.panelWidth / count;
  const auto* date = std::get_if<DateFormat>(&dimension.format());
  const double widthOfComputed =
      date != nullptr ? widestDate(*date, context.chart.folder->manifest.language, theme::labelSize)
                      : 0;
  const double width = isStaggered ? 2 * room : room;
  const LabelLayout upright{.width = static_cast<int>(width) - gap, .lines = mostLines};
  const bool allFit = std::ranges::all_of(dimension.categories, [&](const Category& category) {
    return fits(category, upright, widthOfComputed);
  });
  if (allFit) return upright;
  // Where not even one line fits at 45 degrees, labels go straight up.
  if (room < slant * lineHeight && room >= lineHeight)
    return {.width = theme::legendWidth, .lines = 1, .angle = -90};
  return {.width = theme::legendWidth, .lines = linesIn(room / slant), .angle = -45};
}

/// A category whose label is blank has no tick.
void leaveOutBlanks(Json& axis, const Dimension& dimension) {
  if (std::ranges::none_of(dimension.categories, isBlank)) return;
  axis["values"] = Json::array();
  for (const Category& category : dimension.categories)
    if (!isBlank(category)) axis["values"].push_back(category.key);
}

/// Vega puts the first line beside the tick, not the middle of the lines.
Json middleOf(const std::string& labels) {
  const std::string label = fmt::format("scale({},datum.value)", literal(labels));
  return {{"signal", fmt::format("isArray({0})?(1-length({0}))*{1}:0", label, lineHeight / 2)}};
}

std::size_t mostLinesOf(const Dimension& dimension, const LabelLayout& layout) {
  std::size_t lines = 1;
  for (const Category& category : dimension.categories)
    lines = std::max(lines, wrap(category.label, layout.limits()).size());
  return lines;
}

} // namespace

std::size_t labelCategories(Json& axis, const Dimension& dimension, bool isStaggered,
                            Context& context) {
  const LabelLayout layout = layoutOf(dimension, isStaggered, context);
  const bool across = isAcross(dimension.role, context.chart);
  const bool isShared = !context.chart.facets.isSplit() ||
                        dimension.categories.size() ==
                            context.chart.panels.front().along(dimension.role).categories.size();
  const std::string labels =
      scaleName("label", isShared ? std::string(dimension.role) : context.inPanel(dimension.role));
  if (!context.parts.hasScale(labels))
    context.parts.scales.push_back(
        categoryScale(labels, dimension.categories,
                      labelRange(dimension.categories, [&](const std::string& label) -> Json {
                        return wrap(label, layout.limits());
                      })));
  axis["encode"]["labels"]["update"]["text"] = {{"scale", labels}, {"field", "value"}};
  axis["labelLimit"] = 0;
  if (!across) axis["encode"]["labels"]["update"]["dy"] = middleOf(labels);
  leaveOutBlanks(axis, dimension);
  if (layout.angle == 0) return mostLinesOf(dimension, layout);
  axis["labelAngle"] = layout.angle;
  axis["labelAlign"] = "right";
  axis["labelBaseline"] = "middle";
  return 1;
}

} // namespace render
