// Legends that explain an element or a guide that has left the chart.
#include <fmt/format.h>

#include "check/Check.h"
#include "text/Show.h"

namespace render {
namespace {

void checkBelow(const Node& node, const Chart& chart, Report& report) {
  for (const Node& child : node.children) {
    checkBelow(child, chart, report);
    if (child.kind != "legendTarget") continue;
    const std::string_view id = child.attribute("element");
    if (chart.folder->document.find(id) != nullptr) continue;
    report.add(child, fmt::format("the legend explains \"{}\", which is not in the chart; add the "
                                  "target for an element that is, or leave it out",
                                  shown(id)));
  }
}

} // namespace

void checkLegendTargets(const Chart& chart, Report& report) {
  checkBelow(chart.folder->document.graph(), chart, report);
}

} // namespace render
