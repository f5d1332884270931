#include "translate/Translator.h"

#include <algorithm>
#include <array>
#include <utility>

#include <fmt/format.h>

#include "text/Show.h"
#include "translate/Beyond.h"
#include "translate/FacetLabels.h"
#include "translate/LabelSides.h"
#include "translate/PositionScale.h"
#include "translate/Rules.h"

namespace render {
namespace {

void noteUnknownAttributes(const Node& node, const Rule& rule, Notes& notes) {
  for (const auto& [name, value] : node.attributes)
    if (!rule.knows(name, value))
      notes.add("Attribute not drawn yet^3", {node.name(), name, shown(value)});
}

/// "element scatter" for a node of a type that is not known, else its kind.
std::string described(const Node& node) {
  const std::string_view type = node.attribute("type");
  return type.empty() ? node.kind : fmt::format("{} of type {}", node.kind, shown(type));
}

/// Whether each panel has its own of a part of the plot.
bool isOfPanel(const Node& node) {
  static constexpr std::array<std::string_view, 4> kinds{"dimension", "guide", "elementGroup",
                                                         "element"};
  return std::ranges::find(kinds, node.kind) != kinds.end();
}

void walk(const Node& node, const Node& parent, Context& context);

/// The panels one after the other, each as a group of its own with its scales.
void walkPanels(const Node& plot, Context& context) {
  Json panels = Json::array();
  for (std::size_t i = 0; i < context.chart.panels.size(); ++i) {
    context.panelIndex = i;
    context.parts.axes = Json::array();
    context.parts.marks = Json::array();
    context.parts.linesAcross.clear();
    for (const Node& child : plot.children)
      if (isOfPanel(child)) walk(child, plot, context);
    arrangeLabels(context);
    panels.push_back(panelGroup(context));
  }
  context.parts.axes = Json::array();
  context.parts.marks = std::move(panels);
  addFacetLabels(context);
}

void walkChildren(const Node& node, Context& context) {
  const bool isSplit = &node == context.chart.plot && context.chart.facets.isSplit();
  for (const Node& child : node.children)
    if (!isSplit || !isOfPanel(child)) walk(child, node, context);
  if (isSplit) walkPanels(node, context);
}

void walk(const Node& node, const Node& parent, Context& context) {
  if (std::ranges::find(context.chart.leftOut, &node) != context.chart.leftOut.end()) return;
  const Rule* rule = findRule(node, parent);
  if (rule == nullptr) {
    context.notes.add("Node not drawn yet^2", {described(node), parent.name()});
    return;
  }
  noteUnknownAttributes(node, *rule, context.notes);
  if (rule->translate != nullptr) rule->translate(node, context);
  walkChildren(node, context);
}

} // namespace

bool Parts::hasScale(std::string_view name) const {
  return std::ranges::any_of(scales, [name](const Json& scale) { return scale["name"] == name; });
}

const Element* Context::find(const Node& node) const {
  const Element* element = chart.find(node);
  return element == nullptr ? nullptr : &panel().elements[element->index];
}

Json Parts::takeMarks() {
  Json all = std::exchange(marks, Json::array());
  for (Json& mark : overlay)
    all.push_back(std::move(mark));
  overlay = Json::array();
  return all;
}

std::string Context::inPanel(std::string_view name) const {
  if (!chart.facets.isSplit()) return std::string(name);
  return fmt::format("{}_{}", name, panelIndex + 1);
}

Parts translate(const Chart& chart, const Layout& layout, const Words& words, Notes& notes) {
  Context context{.chart = chart, .layout = layout, .words = words, .notes = notes, .parts = {}};
  for (const std::string_view role : {"x", "y"})
    context.parts.positionScales.push_back(positionScale(role, context));
  noteValuesBeyond(chart, notes);
  walkChildren(chart.folder->document.graph(), context);
  if (!chart.facets.isSplit()) arrangeLabels(context);
  noteLabelsLeftOut(context);
  return std::move(context.parts);
}

} // namespace render
