#include <fmt/format.h>

#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/Style.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {

/// A symbol for each row.
void translatePoint(const Node& node, Context& context) {
  const Element* element = context.chart.find(node);
  if (element == nullptr) return;

  std::string tooltip =
      tooltipEntry(*element->x, context.parts) + "," + tooltipEntry(*element->y, context.parts);
  if (element->group != nullptr) {
    addGroupScales(*element->group, context.parts);
    tooltip = tooltipEntry(*element->group, context.parts) + "," + tooltip;
  }
  Json update = positions(*element);
  update["size"] = {{"value", theme::pointSize}};
  if (element->group == nullptr)
    update["shape"] = {{"value", theme::symbols.front().path}};
  else
    update["shape"] = {{"scale", scaleName("symbol", element->group->id)},
                       {"field", fieldPath(element->group->id)}};
  update["stroke"] = color(*element);
  update["strokeWidth"] = {{"value", 1.5}};
  // A transparent filling, unlike none, still takes the pointer.
  update["fill"] = isHollow(node, context.chart) ? Json{{"value", "transparent"}} : color(*element);
  update["fillOpacity"] = {{"value", theme::fillOpacity}};
  update["tooltip"] = {{"signal", fmt::format("[{}]", tooltip)}};

  context.parts.data.push_back(elementData(*element));
  context.parts.marks.push_back({{"type", "symbol"},
                                 {"from", {{"data", node.id()}}},
                                 {"clip", isClipped(context.chart)},
                                 {"encode", {{"update", std::move(update)}}}});
}

} // namespace render
