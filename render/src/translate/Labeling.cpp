#include <array>

#include <fmt/format.h>

#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Groups.h"
#include "translate/Style.h"
#include "translate/Theme.h"

namespace render {
namespace {

/// Where a label stands from its mark: above points and bars, within the rest and where
/// nothing is drawn.
struct Place {
  std::string_view type;
  int dy;
};
constexpr std::array<Place, 2> places{Place{"point", -11}, Place{"interval", -8}};

int raiseOf(const Element& element) {
  if (lookOf(*element.node) == Look::hidden) return 0;
  for (const Place& place : places)
    if (place.type == element.type()) return place.dy;
  return 0;
}

std::string textOf(const Variable& variable, Context& context) {
  if (!variable.categorical) return textOf(variable, datum(variable.id));
  addLabelScale(variable, context.parts);
  return fmt::format("scale({},{})", literal(scaleName("label", variable.id)), datum(variable.id));
}

} // namespace

void addLabels(const Element& element, Context& context) {
  if (element.labels == nullptr) return;
  const bool hasTexts = element.method == Method::none || element.labels->categorical;
  if (!hasTexts || element.isSlice || context.chart.isPolar) {
    context.notes.add(fmt::format("the labels of {} are not drawn yet", element.node->name()));
    return;
  }
  Json update = positions(element, context);
  if (element.modifier == Modifier::dodge)
    addSlotOffset(update[channelsOf(placeRole(element), context.chart).start], element,
                  theme::barBand, context);
  update["text"] = {{"signal", textOf(*element.labels, context)}};
  update["dy"] = {{"value", context.chart.isTransposed ? 0 : raiseOf(element)}};
  update["dx"] = {{"value", context.chart.isTransposed ? 4 : 0}};
  update["align"] = {{"value", context.chart.isTransposed ? "left" : "center"}};
  update["baseline"] = {{"value", "middle"}};
  update["fontSize"] = {{"value", theme::labelSize - 1}};
  update["font"] = {{"value", theme::font(context.chart.folder->manifest)}};
  update["fill"] = {{"signal", "ink"}};
  Json mark{{"type", "text"},
            {"from", {{"data", context.inPanel(element.node->id())}}},
            {"interactive", false},
            {"encode", {{"update", std::move(update)}}}};
  context.parts.marks.push_back(std::move(mark));
}

void addLabelsAlone(const Element& element, Context& context) {
  if (element.labels == nullptr) return;
  context.parts.data.push_back(elementData(element, context));
  addLabels(element, context);
}

} // namespace render
