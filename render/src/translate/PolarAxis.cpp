#include "translate/PolarAxis.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <fmt/format.h>

#include "resolve/ScaleMethod.h"
#include "resolve/Ticks.h"
#include "text/Expression.h"
#include "translate/Groups.h"
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

Json textOf(const Dimension& dimension, double value) {
  return {{"signal", valueText(dimension.format(), literal(value))}};
}

/// How far from the middle a value lies, 1 at the end of the scale.
double shareOf(double value, const Dimension& dimension) {
  const double low = scaled(dimension.low, dimension);
  return (scaled(value, dimension) - low) / (scaled(dimension.high, dimension) - low);
}

void addCircles(const Dimension& dimension, Context& context) {
  if (dimension.categorical) return;
  for (const double value : ticksWithin(dimension.low, dimension.high, circles).values) {
    const double radius = shareOf(value, dimension) * radiusOf(context);
    if (radius > 0) addCircle(radius, context);
    context.parts.marks.push_back(textMark(context.layout.panelWidth / 2 + 4,
                                           context.layout.panelHeight / 2 - radius,
                                           textOf(dimension, value), "left", context));
  }
}

void addRays(const Dimension& dimension, Context& context) {
  constexpr double turn = 2 * std::numbers::pi;
  if (!dimension.categorical) {
    for (const double value : ticksWithin(dimension.low, dimension.high, rays).values)
      addRay(turn * (value - dimension.low) / (dimension.high - dimension.low),
             textOf(dimension, value), context);
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

} // namespace

void addPolarAxis(const Node& node, Context& context) {
  if (node.child("axis") == nullptr) return;
  const std::string_view role = node.attribute("role");
  if (role == "x")
    addRays(context.along(role), context);
  else
    addCircles(context.along(role), context);
}

} // namespace render
