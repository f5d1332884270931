#include <fmt/format.h>

#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {
namespace {

Json lineMark(const Element& element, const std::string& data, Context& context) {
  Json update = positions(element);
  update["stroke"] = color(element);
  update["strokeWidth"] = {{"value", theme::lineWidth}};
  if (element.group != nullptr) {
    if (!hasPoints(*element.group, context.chart))
      update["strokeDash"] = {{"scale", scaleName("dash", element.group->id)},
                              {"field", fieldPath(element.group->id)}};
    update["tooltip"] = {
        {"signal", fmt::format("[{}]", tooltipEntry(*element.group, context.parts))}};
  }
  return {{"type", "line"},
          {"from", {{"data", data}}},
          {"clip", isClipped(context.chart)},
          {"encode", {{"update", std::move(update)}}}};
}

} // namespace

/// A line through the rows in the order of x, one for each group.
void translateLine(const Node& node, Context& context) {
  const Element* element = context.chart.find(node);
  if (element == nullptr) return;

  Json data = elementData(*element);
  data["transform"].push_back(
      {{"type", "collect"}, {"sort", {{"field", fieldPath(element->x->id)}}}});
  context.parts.data.push_back(std::move(data));

  const std::string id(node.id());
  if (element->group == nullptr) {
    context.parts.marks.push_back(lineMark(*element, id, context));
    return;
  }
  addGroupScales(*element->group, context.parts);
  // Vega keeps groups in a plain object: a category must not be named like one
  // of the properties that every object has.
  const std::string key = scaleName("facet", element->group->id);
  context.parts.data.back()["transform"].push_back(
      {{"type", "formula"}, {"as", key}, {"expr", "\"=\" + " + datum(element->group->id)}});
  const std::string group = id + "_group";
  context.parts.marks.push_back(
      {{"type", "group"},
       {"from",
        {{"facet", {{"name", group}, {"data", id}, {"groupby", Json::array({fieldPath(key)})}}}}},
       {"marks", Json::array({lineMark(*element, group, context)})}});
}

} // namespace render
