#include "translate/Interval.h"

#include <algorithm>

#include <fmt/format.h>

#include "compute/Sample.h"
#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Filling.h"
#include "translate/LabelPlace.h"
#include "translate/Style.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"

namespace render {
namespace {

Json rangeAlong(std::string_view role, const char* field) {
  return {{"scale", role}, {"field", field}};
}

/// An end of a bar along numbers; a logarithmic scale may have no place for the lower one.
Json endAlong(std::string_view role, const char* field, const Context& context) {
  const Dimension& dimension = context.along(role);
  if (dimension.type != ScaleType::log) return rangeAlong(role, field);
  return {{"scale", role},
          {"signal", fmt::format("max(datum.{},{})", field, literal(dimension.low))}};
}

/// From the base to the value along the measure.
void addMeasure(Json& update, const Element& element, const Context& context) {
  const std::string_view role = measureRole(element);
  const Channels channels = channelsOf(role, context.chart);
  update[channels.start] = rangeAlong(role, "high");
  update[channels.end] = rangeAlong(role, "low");
}

/// A circle's sector from the item's low to its high, of all that there is.
Json sliceMark(const Element& element, Context& context) {
  const double turns = turnsOf(element, context);
  const auto angle = [turns](const char* field) {
    return Json{{"signal", fmt::format("datum.{}*{}", field, turns)}};
  };
  const Layout& layout = context.layout;
  Json update{{"x", {{"value", layout.panelWidth / 2}}},
              {"y", {{"value", layout.panelHeight / 2}}},
              {"startAngle", angle("low")},
              {"endAngle", angle("high")},
              {"innerRadius", {{"value", 0}}},
              {"outerRadius", {{"value", std::min(layout.panelWidth, layout.panelHeight) / 2}}},
              {"fill", filling(element, context)},
              {"stroke", {{"signal", "paper"}}},
              {"strokeWidth", {{"value", theme::thinWidth}}},
              {"tooltip", tooltip(element, context)}};
  addOutline(update, element, context);
  return {{"type", "arc"}, {"from", nullptr}, {"encode", {{"update", std::move(update)}}}};
}

/// An end of a sector within the angle of its category, which groups side by side divide.
Json angleAt(const Element& element, bool isEnd, const Context& context) {
  const std::size_t slots = slotCount(element, context);
  const double width = theme::barBand / static_cast<double>(slots);
  const double share = slots > 1 ? width * theme::slotShare : width;
  const double first = (1 - theme::barBand) / 2 + (width - share) / 2;
  const double at = isEnd ? first + share : first;
  Json angle{{"scale", "x"}, {"field", fieldPath(element.x->id)}};
  if (slots == 1) {
    angle["band"] = at;
    return angle;
  }
  angle["offset"] = {
      {"signal", fmt::format("bandwidth(\"x\")*({:.6g}+datum.slot*{:.6g})", at, width)}};
  return angle;
}

/// A bar in polar coordinates: a sector from the middle of the plot.
Json sectorMark(const Element& element, Context& context) {
  const bool isBanded = context.along("x").isBanded;
  const auto end = [&](const char* field, bool isEnd) {
    return isBanded ? angleAt(element, isEnd, context) : endAlong("x", field, context);
  };
  Json update{{"x", {{"value", context.layout.panelWidth / 2}}},
              {"y", {{"value", context.layout.panelHeight / 2}}},
              {"startAngle", end("from", false)},
              {"endAngle", end("to", true)},
              {"innerRadius", {{"scale", "y"}, {"field", "low"}}},
              {"outerRadius", {{"scale", "y"}, {"field", "high"}}},
              {"fill", filling(element, context)},
              {"fillOpacity", {{"value", theme::barOpacity}}},
              {"tooltip", tooltip(element, context)}};
  addOutline(update, element, context);
  return {{"type", "arc"}, {"from", nullptr}, {"encode", {{"update", std::move(update)}}}};
}

Json barMark(const Element& element, Context& context) {
  Json update = Json::object();
  // The bars of an icicle plot touch each other.
  addBarWidth(update, element, context.chart.folder->manifest.icicle ? 1 : theme::barBand, context);
  addMeasure(update, element, context);
  update["fill"] = filling(element, context);
  update["fillOpacity"] = {{"value", theme::barOpacity}};
  if (element.method == Method::histogram) {
    update["stroke"] = {{"signal", "paper"}};
    update["strokeWidth"] = {{"value", 0.5}};
  }
  addOutline(update, element, context);
  update["tooltip"] = tooltip(element, context);
  return {{"type", "rect"},
          {"from", nullptr},
          {"clip", isClipped(context.chart)},
          {"encode", {{"update", std::move(update)}}}};
}

void addMarks(const Element& element, Context& context) {
  const Look look = lookOf(*element.node);
  const bool isWhisker = element.summary != nullptr && element.summary->name == "tukeyInnerFence";
  if (element.isSlice) return addMark(element, sliceMark(element, context), false, context);
  if (context.chart.isPolar) return addMark(element, sectorMark(element, context), false, context);
  if (look == Look::usual && !isWhisker)
    return addMark(element, barMark(element, context), false, context);
  addMark(element, thinMark(element, context), false, context);
  if (look == Look::thin) return;
  for (const char* end : {"low", "high"})
    addMark(element, capMark(element, end, context), false, context);
}

} // namespace

void addBarWidth(Json& update, const Element& element, double share, const Context& context) {
  const std::string_view role = placeRole(element);
  const Channels channels = channelsOf(role, context.chart);
  if (!context.along(role).categorical) {
    update[channels.start] = endAlong(role, "from", context);
    update[channels.end] = endAlong(role, "to", context);
    return;
  }
  const std::size_t slots = slotCount(element, context);
  const double slot = share / static_cast<double>(slots);
  Json middle = position(element, role, "place", context);
  if (slots > 1) addSlotOffset(middle, element, share, context);
  update[channels.middle] = std::move(middle);
  update[channels.length] = {{"scale", role}, {"band", slots > 1 ? slot * theme::slotShare : slot}};
}

Json thinMark(const Element& element, Context& context) {
  const std::string_view role = placeRole(element);
  Json update = Json::object();
  Json place = position(element, role, "place", context);
  addSlotOffset(place, element, theme::barBand, context);
  update[channelsOf(role, context.chart).start] = std::move(place);
  addMeasure(update, element, context);
  // Whiskers and error bars cross bars of their own color.
  const bool isOfGroup = element.group != nullptr && lookOf(*element.node) == Look::thin;
  update["stroke"] = isOfGroup ? color(element, context) : Json{{"signal", "ink"}};
  update["strokeWidth"] = {{"value", theme::thinWidth}};
  update["tooltip"] = tooltip(element, context);
  return {{"type", "rule"},
          {"from", nullptr},
          {"clip", isClipped(context.chart)},
          {"encode", {{"update", std::move(update)}}}};
}

Json capMark(const Element& element, const char* end, Context& context) {
  Json mark = thinMark(element, context);
  Json& update = mark["encode"]["update"];
  const Channels place = channelsOf(placeRole(element), context.chart);
  const Channels measure = channelsOf(measureRole(element), context.chart);
  update.erase(measure.end);
  update.erase("tooltip");
  update[measure.start] = rangeAlong(measureRole(element), end);
  const bool liesAcross = isAcross(placeRole(element), context.chart);
  update[place.start] = std::move(update[place.start]);
  update["size"] = {{"value", theme::capLength * theme::capLength}};
  update["shape"] = {{"value", liesAcross ? "M-1,0H1" : "M0,-1V1"}};
  mark["type"] = "symbol";
  mark["aria"] = false; // the line between them tells both ends
  return mark;
}

/// A bar for each item; a line where its style says so; a sector in polar coordinates.
void translateInterval(const Node& node, Context& context) {
  const Element* element = context.find(node);
  if (element == nullptr || lookOf(node) == Look::hidden) return;
  if (element->summary != nullptr && element->summary->name.starts_with("tukey") &&
      !element->summary->name.ends_with("Fence"))
    return translateBoxPlot(node, context);
  context.parts.data.push_back(elementData(*element, context));
  addMarks(*element, context);
  addLabels(*element, context);
}

} // namespace render
