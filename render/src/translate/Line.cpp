#include <fmt/format.h>

#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/LineMark.h"
#include "translate/PlaceOrder.h"
#include "translate/Style.h"
#include "translate/StyleCycle.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"
#include "translate/Translator.h"

namespace render {
namespace {

/// A line through all categories of a circle comes back to the first.
bool goesAround(const Element& element, const Context& context) {
  return context.chart.isPolar && element.type() == "line" && element.place() != nullptr &&
         element.place()->categorical;
}

Json looksOf(const Element& element, Context& context) {
  Json update = positions(element, context);
  // A curve over bars of the first color has to differ from them.
  const bool isOverBars = element.method == Method::distribution && element.group == nullptr;
  update["stroke"] = isOverBars ? Json{{"signal", "ink"}} : color(element, context);
  update["strokeWidth"] = {{"value", theme::lineWidth}};
  if (const std::string_view steps = interpolationOf(*element.node); steps != "linear")
    update["interpolate"] = {{"value", steps}};
  else if (goesAround(element, context))
    update["interpolate"] = {{"value", "linear-closed"}};
  if (element.group != nullptr) {
    const Variable& dashed = element.shape != nullptr ? *element.shape : *element.group;
    if (element.shape != nullptr || !hasPoints(dashed, context.chart)) {
      addGroupScales(dashed, context.parts);
      update["strokeDash"] = {{"scale", scaleName("dash", dashed.id)},
                              {"field", fieldPath(dashed.id)}};
    }
  } else if (Json dash = lineDash(element, context.chart); !dash.empty()) {
    update["strokeDash"] = {{"value", std::move(dash)}};
  }
  if (const auto look = lineLookOf(*element.node); look && element.group == nullptr) {
    update["stroke"] = {{"signal", look->stroke}};
    update["strokeWidth"] = {{"value", theme::thinWidth}};
    update.erase("strokeDash");
    if (look->isDashed) update["strokeDash"] = {{"value", theme::functionDash(0)}};
  }
  update["tooltip"] = tooltip(element, context);
  update["description"] = seriesDescription(element, context);
  return update;
}

} // namespace

/// A line through the rows or items of each group.
void translateLine(const Node& node, Context& context) {
  const Element* element = context.find(node);
  if (element == nullptr) return;
  if (lookOf(node) == Look::hidden) return addLabelsAlone(*element, context);
  Json data = elementData(*element, context);
  // A path goes as its rows do.
  if (element->type() == "line") sortAlongPlace(*element, context, data);
  context.parts.data.push_back(std::move(data));
  const Json walk = element->method == Method::distribution ? Json{{"curve", true}} : Json();
  addLineMark(*element, looksOf(*element, context), walk, context);
  addLabels(*element, context);
}

} // namespace render
