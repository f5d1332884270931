#include <fmt/format.h>

#include "translate/Encode.h"
#include "translate/Filling.h"
#include "translate/PlaceOrder.h"
#include "translate/Style.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {
namespace {

/// A band has no pattern, which would hide what it is about.
void fill(Json& update, const Element& element, Context& context) {
  update["fill"] = element.isComposed() ? color(element, context) : filling(element, context);
  if (!element.isComposed()) addOutline(update, context);
  update["fillOpacity"] = {{"value", areaOpacity(element)}};
}

} // namespace

/// An area from low to high along the places of each group.
void translateArea(const Node& node, Context& context) {
  const Element* element = context.find(node);
  if (element == nullptr || lookOf(node) == Look::hidden) return;
  if (context.chart.isPolar) {
    context.notes.add(fmt::format("{} is not drawn yet in polar coordinates", node.name()));
    return;
  }
  const std::string_view place = placeRole(*element);
  const std::string_view measure = measureRole(*element);
  const Channels across = channelsOf(place, context.chart);
  const Channels along = channelsOf(measure, context.chart);
  Json update{{across.start, position(*element, place, "place", context)},
              {along.start, {{"scale", measure}, {"field", "high"}}},
              {along.end, {{"scale", measure}, {"field", "low"}}}};
  if (!isAcross(place, context.chart)) update["orient"] = {{"value", "horizontal"}};
  if (const std::string_view steps = interpolationOf(node); steps != "linear")
    update["interpolate"] = {{"value", steps}};
  fill(update, *element, context);
  if (element->group != nullptr) update["tooltip"] = itemTooltip(*element, context);

  Json data = elementData(*element, context);
  sortAlongPlace(*element, context, data);
  context.parts.data.push_back(std::move(data));
  addMark(*element,
          {{"type", "area"},
           {"from", nullptr},
           {"clip", isClipped(context.chart)},
           {"encode", {{"update", std::move(update)}}}},
          true, context);
  addLabels(*element, context);
}

} // namespace render
