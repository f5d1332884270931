// Roles that an element can play once and has two variables for.
#include <algorithm>
#include <array>
#include <map>
#include <vector>

#include <fmt/format.h>

#include "check/Check.h"

namespace render {
namespace {

/// A styleBy or a split may be there several times: each tells more groups apart. Each labeling
/// writes a line of its own.
constexpr std::array<std::string_view, 8> roles{"x",     "y",   "z",     "r",
                                                "theta", "phi", "color", "size"};

std::string boundTo(const Node& role, const Chart& chart) {
  const Variable* variable = chart.variableOf(role);
  if (variable == nullptr || variable->title == variable->id)
    return fmt::format("\"{}\"", role.attribute("variable"));
  return called(*variable);
}

void checkElement(const Node& element, const Chart& chart, Report& report) {
  std::map<std::string_view, const Node*> bound;
  const auto bind = [&](const Node& parent) {
    for (const Node& child : parent.children) {
      if (std::ranges::find(roles, child.kind) == roles.end()) continue;
      const auto [first, isNew] = bound.try_emplace(child.kind, &child);
      if (isNew) continue;
      report.add(child,
                 fmt::format("{} of the element is bound to {} and again to {}, and only one "
                             "can be drawn; bind it once, or add another element",
                             child.kind, boundTo(*first->second, chart), boundTo(child, chart)));
    }
  };
  if (const Node* position = element.child("position")) bind(*position);
  bind(element);
}

void checkBelow(const Node& node, const Chart& chart, Report& report) {
  for (const Node& child : node.children) {
    if (child.kind == "element") checkElement(child, chart, report);
    checkBelow(child, chart, report);
  }
}

} // namespace

void checkRoles(const Chart& chart, Report& report) {
  checkBelow(chart.folder->document.graph(), chart, report);
}

} // namespace render
