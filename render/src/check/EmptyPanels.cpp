// Panels of a facet in which nothing is drawn.
#include <algorithm>
#include <vector>

#include <fmt/format.h>

#include "check/Check.h"
#include "text/Show.h"

namespace render {
namespace {

bool isEmpty(const Panel& panel) {
  return std::ranges::all_of(panel.items, [](const auto& items) { return items.empty(); });
}

void addValues(const FacetCell& cell, std::string& text) {
  for (const FacetValue& value : cell)
    text += fmt::format("{}{} \"{}\"", text.empty() ? "" : ", ", called(*value.variable),
                        shown(value.variable->categories[value.category].label));
}

std::string valuesOf(const Panel& panel, const Facets& facets) {
  std::string text;
  addValues(facets.columns[panel.column], text);
  addValues(facets.rows[panel.row], text);
  return text;
}

const Node* facetNode(const Chart& chart) {
  for (const char* kind : {"tableFacet", "coordinateFacet"})
    if (const Node* node = chart.plot->child(kind)) return node;
  return nullptr;
}

} // namespace

void checkEmptyPanels(const Chart& chart, Report& report) {
  if (chart.elements.empty() || chart.facets.isMatrix || !chart.facets.isSplit()) return;
  const Node* facet = facetNode(chart);
  std::vector<const Panel*> empty;
  for (const Panel& panel : chart.panels)
    if (isEmpty(panel)) empty.push_back(&panel);
  const bool isOneCause = empty.size() == chart.panels.size(); // told by other rules
  if (facet == nullptr || empty.empty() || isOneCause) return;
  report.add(*facet, fmt::format("nothing is drawn in {} of {} panels, the first of them that of "
                                 "{}; nest the facet's variables to have panels only for what "
                                 "occurs",
                                 empty.size(), chart.panels.size(),
                                 valuesOf(*empty.front(), chart.facets)));
}

} // namespace render
