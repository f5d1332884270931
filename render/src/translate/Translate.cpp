#include "translate/Translator.h"

#include <algorithm>

#include <fmt/format.h>

#include "text/Show.h"
#include "translate/Rules.h"

namespace render {
namespace {

void noteUnknownAttributes(const Node& node, const Rule& rule, Notes& notes) {
  for (const auto& [name, value] : node.attributes)
    if (!rule.knows(name, value))
      notes.add(fmt::format("{}: {}=\"{}\" is not drawn yet", node.name(), name, shown(value)));
}

/// "element scatter" for a node of a type that is not known, else its kind.
std::string described(const Node& node) {
  const std::string_view type = node.attribute("type");
  return type.empty() ? node.kind : fmt::format("{} of type {}", node.kind, shown(type));
}

void walk(const Node& node, const Node& parent, Context& context) {
  if (std::ranges::find(context.chart.leftOut, &node) != context.chart.leftOut.end()) return;
  const Rule* rule = findRule(node, parent);
  if (rule == nullptr) {
    context.notes.add(fmt::format("{} in {} is not drawn yet", described(node), parent.name()));
    return;
  }
  noteUnknownAttributes(node, *rule, context.notes);
  if (rule->translate != nullptr) rule->translate(node, context);
  for (const Node& child : node.children)
    walk(child, node, context);
}

} // namespace

bool Parts::hasScale(std::string_view name) const {
  return std::ranges::any_of(scales, [name](const Json& scale) { return scale["name"] == name; });
}

Parts translate(const Chart& chart, Notes& notes) {
  Context context{.chart = chart, .notes = notes, .parts = {}};
  for (const Node& child : chart.folder->document.graph().children)
    walk(child, chart.folder->document.graph(), context);
  return std::move(context.parts);
}

} // namespace render
