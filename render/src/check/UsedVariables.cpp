#include "check/UsedVariables.h"

#include <array>
#include <unordered_set>

namespace render {
namespace {

constexpr std::array<std::string_view, 3> namingAttributes{"variable", "sourceVariable",
                                                           "statVariable"};

using Used = std::unordered_set<const Variable*>;

void use(const Variable& variable, Used& used) {
  used.insert(&variable);
  used.insert(variable.members.begin(), variable.members.end());
}

void collect(const Node& node, const Chart& chart, Used& used) {
  for (const std::string_view name : namingAttributes) {
    const auto found = chart.variableOfId.find(node.attribute(name));
    if (found != chart.variableOfId.end()) use(*found->second, used);
  }
  for (const Node& child : node.children)
    collect(child, chart, used);
}

} // namespace

std::vector<const Variable*> usedVariables(const Chart& chart) {
  Used used;
  collect(chart.folder->document.graph(), chart, used);
  std::vector<const Variable*> inOrder;
  for (const Variable& variable : chart.variables)
    if (!variable.id.empty() && (variable.isWeight || used.contains(&variable)))
      inOrder.push_back(&variable);
  return inOrder;
}

} // namespace render
