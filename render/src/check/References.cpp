// References to ids that no node has.
#include <algorithm>

#include <fmt/format.h>

#include "check/Check.h"
#include "text/Show.h"

namespace render {
namespace {

/// Whose attribute names a node, and what the chart does without it.
struct Reference {
  std::string_view attribute;
  std::string_view loss;
  bool mayBeEmpty = true;
};

constexpr Reference references[] = {
    {"variable", "nothing is drawn of it; name a variable of the chart", false},
    {"source", "it has no rows; name a source of the chart"},
    {"domain", "it is passed over; name a domain or a variable of the chart"},
    {"sourceVariable", "nothing is sorted by it; name a variable of the chart"},
    {"statVariable", "nothing is sorted by it; name a variable of the chart"},
};

void checkNode(const Node& node, const Chart& chart, Report& report) {
  for (const auto& [name, id] : node.attributes) {
    const auto* const reference = std::ranges::find(references, name, &Reference::attribute);
    if (reference == std::end(references)) continue;
    if (id.empty() && !reference->mayBeEmpty)
      report.add(node,
                 fmt::format("its {} names a node that has no id, and {}", name, reference->loss));
    if (id.empty() || chart.folder->document.find(id) != nullptr) continue;
    report.add(node, fmt::format("its {} \"{}\" is not in the chart, and {}", name, shown(id),
                                 reference->loss));
  }
  for (const Node& child : node.children)
    checkNode(child, chart, report);
}

} // namespace

void checkReferences(const Chart& chart, Report& report) {
  checkNode(chart.folder->document.graph(), chart, report);
}

} // namespace render
