#include "translate/PolarAxis.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <fmt/format.h>

#include "resolve/ScaleMethod.h"
#include "text/Expression.h"
#include "text/Wrap.h"
#include "translate/AxisTicks.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/Space.h"
#include "translate/Theme.h"

namespace render {
namespace {

constexpr int circles = 4;
constexpr int rays = 8;
constexpr double labelGap = 14;

double radiusOf(const Context& context) {
  return std::min(context.layout.panelWidth, context.layout.panelHeight) / 2;
}

Json textMark(double x, double y, Json text, const char* align, const Context& context) {
  return {{"type", "text"},
          {"encode",
           {{"update",
             {{"x", {{"value", x}}},
              {"y", {{"value", y}}},
              {"text", std::move(text)},
              {"align", {{"value", align}}},
              {"baseline", {{"value", "middle"}}},
              {"font", {{"value", theme::font(context.chart.folder->manifest)}}},
              {"fontSize", {{"value", theme::labelSize}}},
              {"fill", {{"signal", "ink"}}}}}}}};
}

Json lineMark(Json update) {
  update["stroke"] = {{"signal", "faint"}};
  return {{"type", "path"}, {"encode", {{"update", std::move(update)}}}};
}

void addCircle(double radius, Context& context) {
  context.parts.marks.push_back(
      lineMark({{"x", {{"value", context.layout.panelWidth / 2}}},
                {"y", {{"value", context.layout.panelHeight / 2}}},
                {"path",
                 {{"value", fmt::format("M{0:.6g},0A{0:.6g},{0:.6g},0,1,1,{1:.6g},0A{0:.6g},"
                                        "{0:.6g},0,1,1,{0:.6g},0",
                                        radius, -radius)}}}}));
}

/// A ray at an angle from the top, clockwise, with its label beyond the end.
void addRay(double angle, Json text, Context& context) {
  const double x = context.layout.panelWidth / 2;
  const double y = context.layout.panelHeight / 2;
  const double radius = radiusOf(context);
  const double across = std::sin(angle);
  const double up = std::cos(angle);
  context.parts.marks.push_back(lineMark(
      {{"x", {{"value", x}}},
       {"y", {{"value", y}}},
       {"path", {{"value", fmt::format("M0,0L{:.6g},{:.6g}", radius * across, -radius * up)}}}}));
  const char* side = across > 0 ? "left" : "right";
  const char* align = std::abs(across) < 0.1 ? "center" : side;
  context.parts.marks.push_back(textMark(x + (radius + labelGap) * across,
                                         y - (radius + labelGap) * up, std::move(text), align,
                                         context));
}

/// How far from the middle a value lies, 1 at the end of the scale.
double shareOf(double value, const Dimension& dimension) {
  const double low = scaled(dimension.low, dimension);
  return (scaled(value, dimension) - low) / (scaled(dimension.high, dimension) - low);
}

void addCircles(const Dimension& dimension, const Node& axis, Context& context) {
  if (dimension.categorical) return;
  const AxisTicks ticks =
      axisTicks(dimension, &axis, {.numbers = circles, .dates = circles}, context);
  for (const double value : ticks.values) {
    const double radius = shareOf(value, dimension) * radiusOf(context);
    if (radius > 0) addCircle(radius, context);
    // Sectors would hide it.
    addOnPaper(textMark(context.layout.panelWidth / 2 + 4, context.layout.panelHeight / 2 - radius,
                        {{"signal", ticks.labelOf(value)}}, "left", context),
               context.parts.overlay);
  }
}

void addRays(const Dimension& dimension, const Node& axis, Context& context) {
  constexpr double turn = 2 * std::numbers::pi;
  if (!dimension.categorical) {
    const AxisTicks ticks = axisTicks(dimension, &axis, {.numbers = rays, .dates = rays}, context);
    for (const double value : ticks.values)
      if (value < dimension.high) // where the circle begins again
        addRay(turn * shareOf(value, dimension), {{"signal", ticks.labelOf(value)}}, context);
    return;
  }
  const auto count = static_cast<double>(dimension.categories.size());
  double middle = 0.5;
  for (const Category& category : dimension.categories)
    addRay(turn * middle++ / count,
           category.expression.empty() ? Json{{"value", category.label}}
                                       : Json{{"signal", category.expression}},
           context);
}

/// How far the labels of rays reach beyond the circle.
double roomOfRays(const Dimension& angles) {
  constexpr double ofNumbers = 50;
  double widest = angles.categorical ? 0 : ofNumbers;
  for (const Category& category : angles.categories)
    widest = std::max(widest, textWidth(category.label, theme::labelSize));
  return labelGap + widest;
}

/// The title of the angle stands under the circle, that of the distance upright at its left.
void addTitle(const std::vector<std::string>& lines, std::string_view role, Context& context) {
  constexpr double below = 40;
  constexpr double beside = 14;
  constexpr int lineHeight = theme::axisTitleSize + 4;
  if (lines.empty()) return;
  const bool isAngle = role == "x";
  const double x = context.layout.panelWidth / 2;
  const double y = context.layout.panelHeight / 2;
  const double left = radiusOf(context) + roomOfRays(context.along("x")) + beside +
                      lineHeight * static_cast<double>(lines.size() - 1);
  Json title = textMark(isAngle ? x : x - left, isAngle ? y + radiusOf(context) + below : y,
                        {{"value", lines}}, "center", context);
  Json& update = title["encode"]["update"];
  update["fontSize"] = {{"value", theme::axisTitleSize}};
  update["lineHeight"] = {{"value", lineHeight}};
  if (!isAngle) update["angle"] = {{"value", -90}};
  context.parts.marks.push_back(std::move(title));
}

} // namespace

void addPolarAxis(const Node& node, std::string_view role, Context& context) {
  const Node* axis = node.child("axis");
  if (axis == nullptr) return;
  const Dimension& dimension = context.along(role);
  if (axis->child("majorTicks") != nullptr && dimension.categorical)
    refuseDelta(axis->child("majorTicks"), context.notes);
  noteStraightAxis(*axis, "In polar coordinates", false, context.notes);
  const auto room = static_cast<int>(2 * radiusOf(context));
  addTitle(wrap(axisTitle(*axis, dimension),
                {.width = room, .fontSize = theme::axisTitleSize, .lines = 2}),
           role, context);
  if (role == "x")
    addRays(dimension, *axis, context);
  else
    addCircles(dimension, *axis, context);
}

} // namespace render
