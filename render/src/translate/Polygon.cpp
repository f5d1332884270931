#include "translate/Encode.h"
#include "translate/LineMark.h"
#include "translate/Style.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"
#include "translate/Translator.h"

namespace render {

/// The rows of each group as the corners of a polygon, in their order.
void translatePolygon(const Node& node, Context& context) {
  const Element* element = context.find(node);
  if (element == nullptr || lookOf(node) == Look::hidden) return;
  if (element->method == Method::hexagons) return translateTile(node, context);
  Json update = positions(*element, context);
  update["interpolate"] = {{"value", "linear-closed"}};
  update["stroke"] = color(*element, context);
  update["strokeWidth"] = {{"value", theme::thinWidth}};
  update["fill"] =
      isHollow(node, context.chart) ? Json{{"value", "transparent"}} : color(*element, context);
  update["fillOpacity"] = {{"value", theme::fillOpacity}};
  update["tooltip"] = seriesTooltip(*element, context);
  context.parts.data.push_back(elementData(*element, context));
  addLineMark(*element, std::move(update), {{"whole", true}}, context);
}

} // namespace render
