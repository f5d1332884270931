#include "translate/AxisTicks.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "resolve/DateTicks.h"
#include "resolve/Ticks.h"
#include "text/Expression.h"
#include "text/Show.h"
#include "translate/Theme.h"

namespace render {
namespace {

/// At multiples of "delta", at powers, or at round numbers.
Ticks ticksOf(const Dimension& dimension, const Node* majorTicks, int count,
              const Context& context) {
  const std::string_view text = majorTicks ? majorTicks->attribute("delta") : std::string_view();
  const double delta = numberOf(text);
  constexpr double mostSteps = 100;
  if (delta > 0 && (dimension.high - dimension.low) / delta <= mostSteps)
    return ticksEvery(delta, dimension.low, dimension.high);
  refuseDelta(majorTicks, context.notes);
  if (dimension.type == ScaleType::log)
    return ticksOfPowers(dimension.parameter, dimension.low, dimension.high);
  if (dimension.type == ScaleType::symmetricLog)
    return ticksOfLogarithm(dimension.parameter, dimension.low, dimension.high);
  return ticksWithin(dimension.low, dimension.high, count);
}

bool showsPercent(const Node* axis) {
  const Node* transform = axis != nullptr ? axis->child("transform") : nullptr;
  return transform != nullptr && transform->attribute("method") == "percent";
}

/// The axis's own format, else that of the values along it.
std::optional<NumberFormat> formatOf(const Node* axis, const Format& usual, Notes& notes) {
  const Node* own = axis != nullptr ? axis->child("numberFormat") : nullptr;
  if (own != nullptr) return NumberFormat::read(*own, notes);
  const auto* number = std::get_if<NumberFormat>(&usual);
  return number != nullptr ? std::optional(*number) : std::nullopt;
}

/// The labels of values along a dimension: those of the first variable that has some.
const std::vector<ValueLabel>& valueLabelsOf(const Dimension& dimension) {
  static const std::vector<ValueLabel> none;
  for (const Variable* variable : dimension.variables)
    if (!variable->valueLabels.empty()) return variable->valueLabels;
  return none;
}

} // namespace

std::string AxisTicks::labelOf(double value) const {
  constexpr std::string_view name = "datum.value";
  std::string text = label;
  const std::string number = literal(value);
  for (std::size_t at = text.find(name); at != std::string::npos;
       at = text.find(name, at + number.size()))
    text.replace(at, name.size(), number);
  return text;
}

AxisTicks axisTicks(const Dimension& dimension, const Node* axis, TickRoom room,
                    const Context& context) {
  const Node* majorTicks = axis != nullptr ? axis->child("majorTicks") : nullptr;
  const Format& format = dimension.format();
  if (const auto* date = std::get_if<DateFormat>(&format)) {
    const auto places = date->isDuration() ? durationTicks : dateTicks;
    AxisTicks ticks{.values = places(dimension.low, dimension.high, date->resolution(),
                                     static_cast<std::size_t>(room.dates)),
                    .label = dateText(*date, "datum.value")};
    refuseDelta(majorTicks, context.notes);
    if (!ticks.values.empty()) return ticks; // far outside of the calendar there are none
  }
  const Ticks ticks = ticksOf(dimension, majorTicks, room.numbers, context);
  const bool isPercent = showsPercent(axis);
  const double magnitude = std::max(std::abs(dimension.low), std::abs(dimension.high));
  std::string text = tickText(
      formatOf(axis, format, context.notes), isPercent ? "(datum.value*100)" : "datum.value",
      isPercent ? std::max(0, ticks.decimals - 2) : ticks.decimals,
      isPercent ? 100 * magnitude : magnitude,
      dimension.type == ScaleType::log || dimension.type == ScaleType::symmetricLog);
  return {.values = ticks.values,
          .label = labelled(valueLabelsOf(dimension), "datum.value", std::move(text))};
}

void refuseDelta(const Node* majorTicks, Notes& notes) {
  if (majorTicks == nullptr || majorTicks->attribute("delta").empty()) return;
  notes.add("Attribute not drawn^3",
            {majorTicks->name(), "delta", shown(majorTicks->attribute("delta"))});
}

double tickLength(const Node& ticks, double usual, Notes& notes) {
  constexpr double most = 50;
  const std::string_view text = ticks.attribute("length");
  double length = numberOf(text);
  const bool isDrawn = length >= 0 && length <= most;
  if (!isDrawn && !text.empty())
    notes.add("Attribute not drawn^3", {ticks.name(), "length", shown(text)});
  if (!isDrawn) length = usual;
  return ticks.attribute("position") == "inside" ? -length : length;
}

bool isStaggered(const Node* majorTicks) {
  return majorTicks != nullptr && majorTicks->attribute("stagger") == "true";
}

void stagger(Json& axis, const Node& majorTicks, std::size_t count, std::size_t lines,
             Notes& notes) {
  if (!isStaggered(&majorTicks)) return;
  const bool isAcross = axis["orient"] == "bottom" || axis["orient"] == "top";
  if (!isAcross || axis.contains("labelAngle")) {
    notes.add("Stagger not drawn^1", {majorTicks.name()});
    return;
  }
  // Vega tells of each label how far along all of them it is.
  const std::size_t steps = count > 1 ? count - 1 : 1;
  const double step = static_cast<double>(lines) * (theme::labelSize + 4);
  axis["encode"]["labels"]["update"]["dy"] = {
      {"signal",
       fmt::format("round(datum.index*{})%2*{}", steps, axis["orient"] == "top" ? -step : step)}};
}

void noteStraightAxis(const Node& axis, std::string_view where, bool hasAngles, Notes& notes) {
  const auto note = [&](const Node& node, std::string_view attribute) {
    const std::string_view value = node.attribute(attribute);
    if (!value.empty() && value != "false" && value != "outside")
      notes.add("Attribute not drawn there^4",
                {node.name(), attribute, shown(value), notes.text(where)});
  };
  note(axis, "opposite");
  if (const Node* major = axis.child("majorTicks")) {
    for (const std::string_view attribute : {"length", "position", "stagger"})
      note(*major, attribute);
    if (!hasAngles) note(*major, "labelAngle");
  }
  if (const Node* minor = axis.child("minorTicks"))
    notes.add("Ticks not drawn there^3", {minor->name(), axis.name(), notes.text(where)});
}

} // namespace render
