#include "translate/Matrix.h"

#include <cmath>
#include <string>
#include <vector>

#include "text/Wrap.h"
#include "translate/FacetCells.h"
#include "translate/Theme.h"

namespace render {

const Node* panelStyle(const Node& node, const Context& context) {
  const Facets& facets = context.chart.facets;
  if (!facets.isMatrix) return nullptr;
  const FacetCell& column = facets.columns[context.panel().column];
  const FacetCell& row = facets.rows[context.panel().row];
  const bool isDiagonal =
      !column.empty() && !row.empty() && column.front().variable == row.front().variable;
  return isDiagonal ? node.child("facetStyle") : nullptr;
}

bool hasGrid(const Node& ticks, const Context& context) {
  const Node* lines = ticks.child("gridLines");
  if (lines == nullptr) return false;
  const Node* style = panelStyle(*lines, context);
  return style == nullptr || !isEmptyStyle(*style, context.chart);
}

bool isEmptyStyle(const Node& facetStyle, const Chart& chart) {
  const Node* style = chart.folder->document.find(facetStyle.attribute("style"));
  return style == nullptr || style->attribute("value").empty();
}

void addVariableName(const Variable& variable, Context& context) {
  constexpr int margin = 12;
  constexpr int lineHeight = theme::labelSize + 4;
  const Layout& layout = context.layout;
  const std::vector<std::string> lines =
      wrap(variable.title, {.width = static_cast<int>(layout.panelWidth) - margin,
                            .fontSize = theme::labelSize,
                            .lines = 4});
  const bool isCell = hasCells(1, context.chart) || hasCells(2, context.chart);
  if (isCell) addStrip({0, 0, layout.panelWidth, layout.panelHeight}, context);
  const double above = lineHeight * (static_cast<double>(lines.size()) - 1) / 2;
  Json update{{"x", {{"value", layout.panelWidth / 2}}},
              {"y", {{"value", layout.panelHeight / 2 - above}}},
              {"text", {{"value", lines}}},
              {"align", {{"value", "center"}}},
              {"baseline", {{"value", "middle"}}},
              {"lineHeight", {{"value", lineHeight}}},
              {"font", {{"value", theme::font(context.chart.folder->manifest)}}},
              {"fontSize", {{"value", theme::labelSize}}},
              {"fill", {{"signal", "ink"}}}};
  context.parts.marks.push_back(
      {{"type", "text"}, {"interactive", false}, {"encode", {{"update", std::move(update)}}}});
}

} // namespace render
