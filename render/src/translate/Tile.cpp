#include "translate/Tile.h"

#include <algorithm>

#include "compute/Hexagons.h"
#include "translate/Encode.h"
#include "translate/Filling.h"
#include "translate/Groups.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"

namespace render {
namespace {

/// A hexagon around the middle of each cell, as wide and as high as the scales make it.
void addHexagons(const Element& element, Context& context) {
  Rows rows;
  for (std::size_t row = 0; row < element.x->numbers.size(); ++row)
    if (element.draws(row)) rows.push_back(row);
  if (rows.empty()) return;
  const HexagonReach reach = hexagonReach(element, rows);
  const auto length = [&](std::string_view role, double value) {
    const Dimension& dimension = context.along(role);
    const double pixels =
        isAcross(role, context.chart) ? context.layout.panelWidth : context.layout.panelHeight;
    return value / (dimension.high - dimension.low) * pixels;
  };
  Json update = positions(element, context);
  const bool isUpright = !context.chart.isTransposed;
  update["path"] = {{"value", isUpright ? "M0,-1L1,-0.5V0.5L0,1L-1,0.5V-0.5Z"
                                        : "M-1,0L-0.5,1H0.5L1,0L0.5,-1H-0.5Z"}};
  update["scaleX"] = {{"value", isUpright ? length("x", reach.x) : length("y", reach.y)}};
  update["scaleY"] = {{"value", isUpright ? length("y", reach.y) : length("x", reach.x)}};
  update["fill"] = {{"scale", addCountScale(element, context)}, {"field", "value"}};
  update["tooltip"] = tooltip(element, context);
  addMark(element,
          {{"type", "path"},
           {"from", nullptr},
           {"clip", isClipped(context.chart)},
           {"encode", {{"update", std::move(update)}}}},
          false, context);
}

} // namespace

std::string addCountScale(const Element& element, Context& context) {
  std::string name = scaleName("shade", element.node->id());
  if (!context.parts.hasScale(name)) {
    double most = 1;
    for (const Panel& panel : context.chart.panels)
      for (const Item& item : panel.items[element.index])
        most = std::max(most, item.value);
    context.parts.scales.push_back(
        {{"name", name},
         {"type", "sqrt"}, // a few full cells leave the others pale
         {"domain", {0, jsonNumber(most)}},
         {"range", {{"signal", theme::ramp(theme::of(context.chart))}}}});
  }
  return name;
}

/// A cell of a table of colors for each row, or a hexagon for each cell that a statistic
/// counts in.
void translateTile(const Node& node, Context& context) {
  const Element* element = context.find(node);
  if (element == nullptr) return;
  if (element->method == Method::hexagons) {
    context.parts.data.push_back(elementData(*element, context));
    return addHexagons(*element, context);
  }
  if (!context.along("x").categorical || !context.along("y").categorical) {
    context.notes.add("Not drawn^2", {node.name(), context.notes.text("Tiles need categories")});
    return;
  }
  Json update = Json::object();
  for (const std::string_view role : {"x", "y"}) {
    const Channels channels = channelsOf(role, context.chart);
    update[channels.middle] = position(*element, role, "", context);
    update[channels.length] = {{"scale", role}, {"band", 1}};
  }
  update["fill"] = filling(*element, context);
  addOutline(update, *element, context);
  update["tooltip"] = tooltip(*element, context);
  context.parts.data.push_back(elementData(*element, context));
  addMark(*element,
          {{"type", "rect"}, {"from", nullptr}, {"encode", {{"update", std::move(update)}}}}, false,
          context);
  addLabels(*element, context);
}

} // namespace render
