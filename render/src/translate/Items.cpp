#include <algorithm>
#include <array>
#include <set>

#include <fmt/format.h>

#include "resolve/ScaleMethod.h"
#include "text/Expression.h"
#include "translate/Cell.h"
#include "translate/Encode.h"
#include "translate/Space.h"

namespace render {
namespace {

constexpr std::array<const char*, 6> partNames{"",       "whisker", "box",
                                               "median", "outlier", "extreme"};

void addVariables(Json& fields, const Element& element, const Item& item) {
  const auto add = [&](const Variable* variable, bool isOneRow) {
    const bool isShown =
        variable != nullptr && variable->texts != nullptr && (variable->categorical || isOneRow);
    if (isShown) fields[variable->id] = cellOf(*variable, item.row);
  };
  const bool isRow = element.method == Method::none;
  for (const Variable* variable :
       {element.x, element.y, element.z, element.group, element.shade, element.size})
    add(variable, isRow);
  for (const Variable* split : element.splits)
    add(split, isRow);
  const bool isBeyond = item.part == BoxPart::outlier || item.part == BoxPart::extreme;
  for (const Variable* label : element.labels)
    add(label, isRow || isBeyond);
}

bool isDrawn(const Element& element, const Item& item, const Context& context) {
  if (element.isSlice) {
    if (item.high < item.low) context.notes.add("No piece below zero^1", {element.node->name()});
    return item.high > item.low;
  }
  const Dimension& place = context.along(placeRole(element));
  const Dimension& measure = context.along(measureRole(element));
  const bool hasPlace =
      place.categorical || takes(item.place(), place) || beginsWithScale(element, item, place);
  return hasPlace && (measure.categorical || takes(item.high, measure));
}

/// Where its base has no place, a bar begins where the scale does.
double startOf(const Element& element, const Item& item, const Dimension& measure) {
  if (measure.categorical || element.isSlice) return item.low;
  if (!takes(item.low, measure)) return measure.low;
  return element.hasBase ? std::clamp(item.low, measure.low, measure.high) : item.low;
}

Json fieldsOf(const Element& element, const Item& item, const std::set<double>& slots,
              const Context& context) {
  Json fields = Json::object();
  addVariables(fields, element, item);
  if (element.isPlain()) return fields;
  if (element.place() != nullptr && !element.place()->categorical) {
    fields["place"] = jsonNumber(item.place());
    if (item.from != item.to) {
      fields["from"] = jsonNumber(item.from);
      fields["to"] = jsonNumber(item.to);
    }
  }
  fields["low"] = jsonNumber(startOf(element, item, context.along(measureRole(element))));
  fields["high"] = jsonNumber(item.high);
  fields["value"] = jsonNumber(item.value);
  if (item.part != BoxPart::none) fields["part"] = partNames[static_cast<std::size_t>(item.part)];
  if (element.isComposed() || element.method == Method::contours) fields["member"] = item.member;
  if (slots.size() > 1)
    fields["slot"] = std::distance(slots.begin(), slots.find(element.group->codes[item.row]));
  return fields;
}

Json rowsOf(const Element& element, const Context& context) {
  std::vector<const Variable*> needed;
  const auto need = [&](const Variable* variable) {
    if (variable != nullptr && variable->texts != nullptr) needed.push_back(variable);
  };
  // In a matrix rows need all its variables, not only those of the panel.
  const Element& whole = context.chart.elements[element.index];
  for (const Variable* position : {whole.x, whole.y}) {
    need(position);
    for (const Variable* member : position->members)
      if (std::ranges::find(needed, member) == needed.end()) need(member);
  }
  for (const Variable* variable : {element.z, element.group, element.shade, element.size})
    need(variable);
  for (const Variable* split : element.splits)
    need(split);
  std::string filter;
  for (const Variable* variable : needed)
    filter += fmt::format("{}isValid({})", filter.empty() ? "" : " && ", datum(variable->id));
  for (const std::string_view role : {"x", "y"})
    if (context.along(role).type == ScaleType::log)
      filter += fmt::format(" && {}>0", datum(element.along(role)->id));
  return {{"name", context.inPanel(element.node->id())},
          {"source", element.x->source},
          {"transform", Json::array({{{"type", "filter"}, {"expr", std::move(filter)}}})}};
}

Json flatData(const Element& element, const Context& context) {
  const Chart& chart = context.chart;
  const bool hasAllRows = !chart.facets.isSplit() || chart.facets.isMatrix;
  // Labels have a side of their own, which is none of the source's columns.
  const bool hasSides = !element.labels.empty() && !chart.facets.isMatrix && chart.space == nullptr;
  if (element.isPlain() && hasAllRows && !hasSides) return rowsOf(element, context);
  const std::set<double> slots = slotsOf(element, context);
  Json values = Json::array();
  for (const Item* item : drawnItems(element, context))
    values.push_back(fieldsOf(element, *item, slots, context));
  return {{"name", context.inPanel(element.node->id())},
          {"values", std::move(values)},
          {"transform", Json::array()}};
}

} // namespace

std::set<double> slotsOf(const Element& element, const Context& context) {
  std::set<double> slots;
  if (element.modifier != Modifier::dodge || element.group == nullptr) return slots;
  for (const Panel& panel : context.chart.panels)
    for (const Item& item : panel.items[element.index])
      slots.insert(element.group->codes[item.row]);
  return slots;
}

std::vector<const Item*> drawnItems(const Element& element, const Context& context) {
  std::vector<const Item*> items;
  for (const Item& item : context.panel().items[element.index])
    if (context.chart.draws(element, item) && isDrawn(element, item, context))
      items.push_back(&item);
  return items;
}

std::size_t slotCount(const Element& element, const Context& context) {
  return std::max(std::size_t{1}, slotsOf(element, context).size());
}

Json elementData(const Element& element, const Context& context) {
  Json data = flatData(element, context);
  if (context.chart.space != nullptr) addProjection(data["transform"], element, context);
  return data;
}

} // namespace render
