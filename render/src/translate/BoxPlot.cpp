#include <algorithm>

#include <fmt/format.h>

#include "compute/Sample.h"
#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Filling.h"
#include "translate/Interval.h"
#include "translate/Style.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {
namespace {

/// A mark for the items of one part of the box plot.
void addPart(const Element& element, const char* part, Json mark, Context& context) {
  const std::string data = context.inPanel(element.node->id());
  const std::string name = fmt::format("{}_{}", data, part);
  const bool isThere = std::ranges::any_of(context.parts.data,
                                           [&](const Json& each) { return each["name"] == name; });
  if (!isThere)
    context.parts.data.push_back(
        {{"name", name},
         {"source", data},
         {"transform", Json::array({{{"type", "filter"},
                                     {"expr", fmt::format("datum.part==={}", literal(part))}}})}});
  mark["from"] = {{"data", name}};
  context.parts.marks.push_back(std::move(mark));
}

Json boxMark(const Element& element, Context& context) {
  Json update = Json::object();
  addBarWidth(update, element, theme::boxBand, context);
  const std::string_view role = measureRole(element);
  const Channels measure = channelsOf(role, context.chart);
  update[measure.start] = {{"scale", role}, {"field", "high"}};
  update[measure.end] = {{"scale", role}, {"field", "low"}};
  update["fill"] = filling(element, context);
  update["fillOpacity"] = {{"value", theme::fillOpacity}};
  update["stroke"] = {{"signal", "ink"}};
  update["strokeWidth"] = {{"value", theme::thinWidth}};
  update["tooltip"] = itemTooltip(element, context);
  return {{"type", "rect"}, {"from", nullptr}, {"encode", {{"update", std::move(update)}}}};
}

/// A box without height, drawn by its outline.
Json medianMark(const Element& element, Context& context) {
  Json mark = boxMark(element, context);
  mark["encode"]["update"]["strokeWidth"] = {{"value", 2 * theme::thinWidth}};
  return mark;
}

/// Outliers are circles, extremes stars.
Json beyondMark(const Element& element, const char* shape, Context& context) {
  Json update = positions(element, context);
  addSlotOffset(update[channelsOf(placeRole(element), context.chart).start], element,
                theme::boxBand, context);
  update["size"] = {{"value", theme::pointSize * 0.6}};
  update["shape"] = {{"value", shape}};
  update["stroke"] = {{"signal", "ink"}};
  update["fill"] = {{"value", "transparent"}};
  update["tooltip"] = itemTooltip(element, context);
  return {{"type", "symbol"}, {"from", nullptr}, {"encode", {{"update", std::move(update)}}}};
}

constexpr const char* star = "M0,-1V1M-0.87,-0.5L0.87,0.5M-0.87,0.5L0.87,-0.5";

/// A whisker as a line that lies in the box's slot.
Json whiskerMark(Json mark, const Element& element, const Context& context) {
  Json& place = mark["encode"]["update"][channelsOf(placeRole(element), context.chart).start];
  place.erase("offset");
  addSlotOffset(place, element, theme::boxBand, context);
  return mark;
}

} // namespace

/// A box plot, or the parts of one that its statistic gives.
void translateBoxPlot(const Node& node, Context& context) {
  const Element* element = context.find(node);
  if (element == nullptr) return;
  if (context.chart.isPolar) {
    context.notes.add("Not drawn yet in polar coordinates^1", {node.name()});
    return;
  }
  context.parts.data.push_back(elementData(*element, context));
  const auto line = [&](Json mark) { return whiskerMark(std::move(mark), *element, context); };
  const std::string_view parts = element->summary->name;
  const bool isWhole = parts == "box";
  if (isWhole || parts == "tukeyInnerFence") {
    addPart(*element, "whisker", line(thinMark(*element, context)), context);
    for (const char* end : {"low", "high"})
      addPart(*element, "whisker", line(capMark(*element, end, context)), context);
  }
  if (isWhole || parts == "tukeyHinges")
    addPart(*element, "box", boxMark(*element, context), context);
  if (isWhole || parts == "median")
    addPart(*element, "median", medianMark(*element, context), context);
  const auto addBeyond = [&](const char* part, const char* shape) {
    addPart(*element, part, beyondMark(*element, shape, context), context);
    addOutlierLabels(*element, part, context);
  };
  if (isWhole || parts == "tukeyOutliers") addBeyond("outlier", "circle");
  if (isWhole || parts == "tukeyExtremes") addBeyond("extreme", star);
}

} // namespace render
