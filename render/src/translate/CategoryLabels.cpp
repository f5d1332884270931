#include "translate/CategoryLabels.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <optional>
#include <variant>

#include <fmt/format.h>

#include "text/Expression.h"
#include "text/Show.h"
#include "text/Wrap.h"
#include "translate/AxisTicks.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/Theme.h"

namespace render {
namespace {

constexpr double lineHeight = theme::labelSize + 2;
constexpr std::size_t mostLines = 3;

/// Where labels in several lines would touch, one of a single line may stand closer.
constexpr double closest = theme::labelSize;
constexpr int gap = 10; ///< between labels side by side

struct LabelLayout {
  int width; ///< of a label, in pixels
  std::size_t lines;
  double angle = 0;
  std::size_t every = 1; ///< of how many categories one has a label
  bool isTight = false;  ///< labels stand closer than Vega lets them

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

/// Of how many categories one has a label, where a label needs more than the room of one.
std::size_t everyIn(double room, double needed) {
  return std::max(std::size_t{1}, static_cast<std::size_t>(std::ceil(needed / room - 1e-9)));
}

/// The labels along an axis, and the room that each category has there.
class LabelRow {
public:
  LabelRow(const Dimension& dimension, const Context& context)
      : dimension_(dimension), across_(isAcross(dimension.role, context.chart)),
        labelGap_(theme::of(context.chart).labelGap) {
    const auto labelled = std::ranges::count_if(dimension.categories, std::not_fn(isBlank));
    const Layout& layout = context.layout;
    const double length = across_ ? layout.panelWidth : layout.panelHeight;
    const double share = std::abs(dimension.upperMapping - dimension.lowerMapping);
    room_ = length * (share > 0 ? share : 1) / std::max(1.0, static_cast<double>(labelled));
    if (const auto* date = std::get_if<DateFormat>(&dimension.format()))
      widthOfComputed_ =
          widestDate(*date, context.chart.folder->manifest.language, theme::labelSize);
  }

  LabelLayout layout(bool isStaggered, std::optional<double> angle) const {
    if (!across_)
      return {.width = theme::legendWidth,
              .lines = linesIn(room_),
              .every = everyIn(room_, closest),
              .isTight = room_ < lineHeight + labelGap_};
    const double room = isStaggered ? 2 * room_ : room_;
    const LabelLayout upright{.width = static_cast<int>(room) - gap, .lines = mostLines};
    const bool isUpright = angle.value_or(0) == 0;
    if (isUpright && allFit(upright)) return upright;
    if (angle) return turned(*angle);
    constexpr double slant = 1.42; // lines at 45 degrees lie that much farther apart
    return turned(room_ < slant * lineHeight ? -90 : -45);
  }

private:
  bool allFit(const LabelLayout& layout) const {
    return std::ranges::all_of(dimension_.categories, [&](const Category& category) {
      if (!category.expression.empty()) return widthOfComputed_ <= layout.width;
      return wrapsWhole(category.label, layout.limits());
    });
  }

  double widest() const {
    double width = widthOfComputed_;
    for (const Category& category : dimension_.categories)
      width = std::max(width, textWidth(category.label, theme::labelSize));
    return std::min<double>(width, theme::legendWidth) + gap;
  }

  /// Labels at an angle lie side by side across their lines, flat ones end to end.
  LabelLayout turned(double angle) const {
    const double across = std::abs(std::sin(angle * std::numbers::pi / 180));
    const double needed = std::min(widest(), closest / std::max(across, 1e-9));
    return {.width = theme::legendWidth,
            .lines = linesIn(room_ * across),
            .angle = angle,
            .every = everyIn(room_, needed),
            .isTight = true};
  }

  const Dimension& dimension_;
  bool across_;
  int labelGap_;
  double room_;
  double widthOfComputed_ = 0;
};

/// The angle that the document asks for; see setTickStyle() for those that cannot be drawn.
std::optional<double> askedAngle(const Node* majorTicks) {
  const double angle = majorTicks != nullptr ? numberOf(majorTicks->attribute("labelAngle")) : NAN;
  return angle >= -360 && angle <= 360 ? std::optional(angle) : std::nullopt;
}

/// A category whose label is blank has no tick, nor has one whose label has no room.
void leaveOut(Json& axis, const Dimension& dimension, std::size_t every, Notes& notes) {
  const bool hasBlanks = std::ranges::any_of(dimension.categories, isBlank);
  if (!hasBlanks && every == 1) return;
  axis["values"] = Json::array();
  std::size_t labelled = 0;
  for (const Category& category : dimension.categories)
    if (!isBlank(category) && labelled++ % every == 0) axis["values"].push_back(category.key);
  if (every > 1)
    notes.add("Room for labels^4", {dimension.role, fmt::to_string(axis["values"].size()),
                                    fmt::to_string(labelled), fmt::to_string(every)});
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

std::size_t labelCategories(Json& axis, const Dimension& dimension, const Node* majorTicks,
                            Context& context) {
  const LabelLayout layout =
      LabelRow(dimension, context).layout(isStaggered(majorTicks), askedAngle(majorTicks));
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
  // Vega takes a slanted label for the upright box around it, and would leave out every other
  // one again and again.
  if (layout.isTight) axis["labelOverlap"] = false;
  leaveOut(axis, dimension, layout.every, context.notes);
  if (layout.angle == 0) return mostLinesOf(dimension, layout);
  axis["labelAngle"] = jsonNumber(layout.angle);
  axis["labelAlign"] = "right";
  axis["labelBaseline"] = "middle";
  return 1;
}

} // namespace render
