#include "translate/Encode.h"

#include <fmt/format.h>

#include "text/Expression.h"
#include "translate/Groups.h"

namespace render {

Json elementData(const Element& element) {
  std::string filter =
      fmt::format("isValid({}) && isValid({})", datum(element.x->id), datum(element.y->id));
  if (element.group != nullptr) filter += fmt::format(" && isValid({})", datum(element.group->id));
  return {{"name", element.node->id()},
          {"source", element.x->source},
          {"transform", Json::array({{{"type", "filter"}, {"expr", std::move(filter)}}})}};
}

Json positions(const Element& element) {
  return {{"x", {{"scale", "x"}, {"field", fieldPath(element.x->id)}}},
          {"y", {{"scale", "y"}, {"field", fieldPath(element.y->id)}}}};
}

Json color(const Element& element) {
  if (element.group == nullptr) return {{"signal", "palette[0]"}};
  return {{"scale", scaleName("color", element.group->id)},
          {"field", fieldPath(element.group->id)}};
}

std::string tooltipEntry(const Variable& variable, Parts& parts) {
  if (variable.categorical) addLabelScale(variable, parts);
  const std::string value = datum(variable.id);
  const std::string text =
      variable.categorical
          ? fmt::format("scale({},{})", literal(scaleName("label", variable.id)), value)
          : valueText(variable.format, value);
  return fmt::format("[{},{}]", literal(variable.title), text);
}

bool isClipped(const Chart& chart) { return chart.plot->attribute("clip") == "true"; }

} // namespace render
