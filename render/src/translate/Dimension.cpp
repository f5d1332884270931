#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "resolve/DateTicks.h"
#include "resolve/Ticks.h"
#include "text/Wrap.h"
#include "translate/CategoryLabels.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {
namespace {

/// The axis's own label, else the titles of the variables drawn along it.
std::string titleOf(const Node& axis, const Dimension& dimension) {
  const Node* label = axis.child("label");
  if (label != nullptr) return label->text;
  std::string title;
  for (const Variable* variable : dimension.variables) {
    if (title.find(variable->title) != std::string::npos) continue;
    if (!title.empty()) title += ", ";
    title += variable->title;
  }
  return title;
}

constexpr int ticksAlongX = 9;
constexpr int ticksAlongY = 7;

void setTicks(Json& axis, const std::vector<double>& values, std::string text) {
  axis["values"] = Json::array();
  for (const double value : values)
    axis["values"].push_back(jsonNumber(value));
  axis["encode"]["labels"]["update"]["text"] = {{"signal", std::move(text)}};
}

/// At places of the calendar; far outside of it there are none.
std::vector<double> timeTicks(const Dimension& dimension, const DateFormat& format,
                              const Context& context) {
  constexpr double gap = 16;
  constexpr int mostDates = 12;
  int most = ticksAlongY;
  if (dimension.role == "x") {
    const double width =
        gap + widestDate(format, context.chart.folder->manifest.language, theme::labelSize);
    most = std::clamp(static_cast<int>(theme::plotWidth / width), 2, mostDates);
  }
  const auto ticks = format.isDuration() ? durationTicks : dateTicks;
  return ticks(dimension.low, dimension.high, format.resolution(), static_cast<std::size_t>(most));
}

void labelNumbers(Json& axis, const Dimension& dimension, const Context& context) {
  const Format& format = dimension.format();
  if (const auto* date = std::get_if<DateFormat>(&format)) {
    const std::vector<double> values = timeTicks(dimension, *date, context);
    if (!values.empty()) return setTicks(axis, values, dateText(*date, "datum.value"));
  }
  const auto* number = std::get_if<NumberFormat>(&format);
  const Ticks ticks =
      ticksWithin(dimension.low, dimension.high, dimension.role == "x" ? ticksAlongX : ticksAlongY);
  const double magnitude = std::max(std::abs(dimension.low), std::abs(dimension.high));
  setTicks(axis, ticks.values,
           tickText(number != nullptr ? std::optional(*number) : std::nullopt, "datum.value",
                    ticks.decimals, magnitude));
}

Json axisOf(const Node& axis, const Dimension& dimension, Context& context) {
  const bool alongX = dimension.role == "x";
  const bool opposite = axis.attribute("opposite") == "true";
  const char* nearSide = alongX ? "bottom" : "left";
  const char* farSide = alongX ? "top" : "right";
  const char* side = opposite ? farSide : nearSide;
  const Node* ticks = axis.child("majorTicks");
  Json json{{"scale", dimension.role},
            {"orient", side},
            {"title",
             wrap(titleOf(axis, dimension), {.width = alongX ? theme::plotWidth : theme::plotHeight,
                                             .fontSize = theme::axisTitleSize,
                                             .lines = 3})},
            {"grid", ticks != nullptr && ticks->child("gridLines") != nullptr},
            {"ticks", ticks != nullptr},
            {"labels", ticks != nullptr}};
  if (dimension.categorical)
    labelCategories(json, dimension, context);
  else
    labelNumbers(json, dimension, context);
  return json;
}

} // namespace

/// The axes of a dimension; its scale is there whether it has a node or not.
void translateDimension(const Node& node, Context& context) {
  const Dimension* dimension = context.chart.dimension(node.attribute("role"));
  if (dimension == nullptr) return;
  for (const Node& child : node.children)
    if (child.kind == "axis") context.parts.axes.push_back(axisOf(child, *dimension, context));
}

} // namespace render
