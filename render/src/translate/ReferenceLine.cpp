#include <cmath>

#include <fmt/format.h>

#include "compute/Bins.h"
#include "text/Expression.h"
#include "text/PlainValue.h"
#include "text/Show.h"
#include "translate/Encode.h"
#include "translate/ItemPlace.h"
#include "translate/ReferenceLook.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"
#include "translate/Translator.h"

namespace render {
namespace {

/// The value of a category that a text names, by its key or its label.
const Category* categoryOf(const Dimension& dimension, std::string_view text) {
  for (const Category& category : dimension.categories)
    if (category.key == text || category.label == text) return &category;
  return nullptr;
}

/// Where a line stands in the panel.
Area areaOf(double value, std::string_view role, const Context& context) {
  const double place = placeOf(value, role, context);
  const Layout& layout = context.layout;
  if (isAcross(role, context.chart))
    return {.left = place - 1, .right = place + 1, .bottom = layout.panelHeight};
  return {.top = place - 1, .right = layout.panelWidth, .bottom = place + 1};
}

/// Its name, or what the axis shows, and where it stands.
Json lineTooltip(const Node& guide, std::string_view role, double value, const Category* category,
                 const Context& context) {
  const std::string_view name = guide.attribute("name");
  const Format& format = context.along(role).format();
  std::string text;
  if (category != nullptr)
    text = literal(category->label);
  else if (std::holds_alternative<std::monostate>(format))
    text = literal(roundedText(value, context.chart.folder->manifest.signs));
  else
    text = valueText(format, literal(value));
  return tooltipOf({entry(name.empty() ? titleAlong(role, context) : std::string(name), text)});
}

} // namespace

/// A line across the plot at a value of x or of y, its "x" or "y" parameter.
void translateReferenceLine(const Node& guide, Context& context) {
  for (const std::string_view role : {"x", "y"}) {
    const std::string_view text = parameter(guide, role);
    if (text.empty()) continue;
    const Dimension& dimension = context.along(role);
    const double value = numberOf(text);
    const Category* category = dimension.categorical ? categoryOf(dimension, text) : nullptr;
    const bool isWithin = dimension.categorical ? category != nullptr
                                                : value >= dimension.low && value <= dimension.high;
    if (!isWithin || context.chart.isPolar || context.chart.space != nullptr) {
      context.notes.add("Outside the plot^3", {guide.name(), role, shown(text)});
      continue;
    }
    const Channels at = channelsOf(role, context.chart);
    const Channels along = channelsOf(role == "x" ? "y" : "x", context.chart);
    const bool goesUp = isAcross(role, context.chart);
    Json place{{"scale", role}, {"value", category ? Json(category->key) : jsonNumber(value)}};
    if (dimension.isBanded) place["band"] = 0.5;
    Json update{
        {at.start, std::move(place)},
        {along.start, {{"value", 0}}},
        {along.end, {{"value", goesUp ? context.layout.panelHeight : context.layout.panelWidth}}},
        {"stroke", {{"signal", "ink"}}},
        {"strokeWidth", {{"value", theme::thinWidth}}},
        {"strokeDash", {{"value", dashOf(guide, context.chart)}}},
        {"tooltip", lineTooltip(guide, role, value, category, context)}};
    context.parts.lines.push_back(&guide);
    if (!dimension.categorical) context.parts.linesAcross.push_back(areaOf(value, role, context));
    context.parts.marks.push_back({{"type", "rule"},
                                   {"walk", {{"series", context.inPanel("lines")}}},
                                   {"encode", {{"update", std::move(update)}}}});
  }
}

} // namespace render
