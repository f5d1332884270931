#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include <fmt/format.h>

#include "compute/Sample.h"
#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Filling.h"
#include "translate/Interval.h"
#include "translate/Style.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"
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
  if (mark.value("aria", true)) mark["walk"] = walkOf(element, context);
  context.parts.marks.push_back(std::move(mark));
}

/// The numbers of a box plot by the words for them, in the order in which they are told.
constexpr std::array<std::pair<const char*, const char*>, 5> numbers{{
    {"Lower whisker", "lowerWhisker"},
    {"Lower hinge", "lowerHinge"},
    {"Median", "median"},
    {"Upper hinge", "upperHinge"},
    {"Upper whisker", "upperWhisker"},
}};

/// Gives each part of a box all of the box's numbers, to tell them together. Its whiskers
/// come first, the lower one before the upper one.
void addNumbers(Json& items, const Element& element) {
  std::map<std::string, Json> numbersOf;
  const auto keyOf = [&](const Json& item) {
    std::string key;
    for (const Variable* variable : {element.place(), element.group})
      if (variable != nullptr && variable->categorical) key += item[variable->id].dump() + ",";
    for (const Variable* split : element.splits)
      key += item[split->id].dump() + ",";
    return key;
  };
  for (const Json& item : items) {
    Json& box = numbersOf[keyOf(item)];
    const Json& part = item["part"];
    if (part == "median") box["median"] = item["value"];
    if (part == "box") box.update({{"lowerHinge", item["low"]}, {"upperHinge", item["high"]}});
    if (part != "whisker") continue;
    if (box.contains("lowerWhisker"))
      box["upperWhisker"] = item["high"];
    else
      box["lowerWhisker"] = item["low"];
  }
  for (Json& item : items)
    if (item["part"] != "outlier" && item["part"] != "extreme") item.update(numbersOf[keyOf(item)]);
}

/// All numbers of the box that are drawn.
Json boxTooltip(const Element& element, Context& context) {
  std::vector<std::string> entries = placeEntries(element, context);
  entries.push_back(entry("", literal(measureTitle(element, context))));
  for (const auto& [word, field] : numbers) {
    const std::string value = fmt::format("datum.{}", field);
    entries.push_back(
        entry(context.words(word),
              fmt::format("isValid({})?{}:\"\"", value,
                          valueAlong(measureRole(element), element.measure(), value, context))));
  }
  return tooltipOf(entries);
}

/// The value and what it is, with the texts that are written at it.
Json beyondTooltip(const Element& element, const char* word, Context& context) {
  std::vector<std::string> entries = placeEntries(element, context);
  for (const Variable* label : element.labels)
    if (label->categorical) entries.push_back(rowEntry(*label, context));
  entries.push_back(
      entry(measureTitle(element, context),
            valueAlong(measureRole(element), element.measure(), "datum.value", context)));
  entries.push_back(entry("", literal(context.words(word))));
  return tooltipOf(entries);
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
  update["tooltip"] = boxTooltip(element, context);
  return {{"type", "rect"}, {"from", nullptr}, {"encode", {{"update", std::move(update)}}}};
}

/// A box without height, drawn by its outline.
Json medianMark(const Element& element, Context& context) {
  Json mark = boxMark(element, context);
  mark["encode"]["update"]["strokeWidth"] = {{"value", 2 * theme::thinWidth}};
  return mark;
}

/// Outliers are circles, extremes stars.
Json beyondMark(const Element& element, const char* shape, const char* word, Context& context) {
  Json update = positions(element, context);
  addSlotOffset(update[channelsOf(placeRole(element), context.chart).start], element,
                theme::boxBand, context);
  update["size"] = {{"value", theme::pointSize * 0.6}};
  update["shape"] = {{"value", shape}};
  update["stroke"] = {{"signal", "ink"}};
  update["fill"] = {{"value", "transparent"}};
  update["tooltip"] = beyondTooltip(element, word, context);
  return {{"type", "symbol"}, {"from", nullptr}, {"encode", {{"update", std::move(update)}}}};
}

constexpr const char* star = "M0,-1V1M-0.87,-0.5L0.87,0.5M-0.87,0.5L0.87,-0.5";

/// A whisker as a line that lies in the box's slot.
Json whiskerMark(Json mark, const Element& element, Context& context) {
  Json& update = mark["encode"]["update"];
  if (update.contains("tooltip")) update["tooltip"] = boxTooltip(element, context);
  Json& place = update[channelsOf(placeRole(element), context.chart).start];
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
  Json data = elementData(*element, context);
  addNumbers(data["values"], *element);
  context.parts.data.push_back(std::move(data));
  const std::string_view parts = element->summary->name;
  const bool isWhole = parts == "box";
  // The box tells what the other parts show.
  const auto silent = [&](Json mark) {
    if (isWhole) mark["aria"] = false;
    return mark;
  };
  const auto line = [&](Json mark) {
    return silent(whiskerMark(std::move(mark), *element, context));
  };
  if (isWhole || parts == "tukeyInnerFence") {
    addPart(*element, "whisker", line(thinMark(*element, context)), context);
    for (const char* end : {"low", "high"})
      addPart(*element, "whisker", line(capMark(*element, end, context)), context);
  }
  if (isWhole || parts == "tukeyHinges")
    addPart(*element, "box", boxMark(*element, context), context);
  if (isWhole || parts == "median")
    addPart(*element, "median", silent(medianMark(*element, context)), context);
  const auto addBeyond = [&](const char* part, const char* shape, const char* word) {
    addPart(*element, part, beyondMark(*element, shape, word, context), context);
    addOutlierLabels(*element, part, context);
  };
  if (isWhole || parts == "tukeyOutliers") addBeyond("outlier", "circle", "Outlier");
  if (isWhole || parts == "tukeyExtremes") addBeyond("extreme", star, "Extreme value");
}

} // namespace render
