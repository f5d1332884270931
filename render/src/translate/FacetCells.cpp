#include "translate/FacetCells.h"

#include <algorithm>

#include "translate/FacetLabels.h"

namespace render {
namespace {

/// The cells of columns or rows at one level, each as far as a panel of the other direction.
void collectCells(bool areColumns, std::size_t level, std::vector<Rectangle>& boxes,
                  const Context& context) {
  const Layout& layout = context.layout;
  const Facets& facets = context.chart.facets;
  const std::vector<Run> runs = areColumns
                                    ? runsOf(facets.columns, level, layout.left, layout.panelWidth)
                                    : runsOf(facets.rows, level, layout.top, layout.panelHeight);
  for (const Run& run : runs)
    for (const double place : areColumns ? layout.top : layout.left) {
      const Rectangle box = areColumns
                                ? Rectangle{run.start(), place, run.length, layout.panelHeight}
                                : Rectangle{place, run.start(), layout.panelWidth, run.length};
      if (std::ranges::find(boxes, box) == boxes.end()) boxes.push_back(box);
    }
}

Json rectangle(const Rectangle& box, Json update) {
  update["x"] = {{"value", jsonNumber(box.x)}};
  update["y"] = {{"value", jsonNumber(box.y)}};
  update["width"] = {{"value", jsonNumber(box.width)}};
  update["height"] = {{"value", jsonNumber(box.height)}};
  return {{"type", "rect"}, {"interactive", false}, {"encode", {{"update", std::move(update)}}}};
}

} // namespace

std::vector<Run> runsOf(const std::vector<FacetCell>& cells, std::size_t level,
                        const std::vector<double>& starts, double length) {
  std::vector<Run> runs;
  for (std::size_t first = 0; first < cells.size();) {
    std::size_t next = first + 1;
    const auto isAlike = [&](const FacetCell& cell) {
      return cell.size() > level &&
             std::equal(cell.begin(), cell.begin() + static_cast<std::ptrdiff_t>(level) + 1,
                        cells[first].begin());
    };
    while (next < cells.size() && cells[first].size() > level && isAlike(cells[next]))
      ++next;
    const double end = starts[next - 1] + length;
    if (cells[first].size() > level)
      runs.push_back({.value = &cells[first][level],
                      .middle = (starts[first] + end) / 2,
                      .length = end - starts[first]});
    first = next;
  }
  return runs;
}

std::size_t depthOf(const std::vector<FacetCell>& cells) {
  std::size_t depth = 0;
  for (const FacetCell& cell : cells)
    depth = std::max(depth, cell.size());
  return depth;
}

bool hasCells(std::size_t level, const Chart& chart) {
  const Node* label = facetLabel(level, chart);
  return label != nullptr && !label->attribute("cellStyle").empty();
}

void addStrip(const Rectangle& box, Context& context) {
  context.parts.marks.push_back(rectangle(box, {{"fill", {{"signal", "faint"}}}}));
}

void addCellFrames(Context& context) {
  constexpr double opacity = 0.45;
  const Facets& facets = context.chart.facets;
  const std::size_t columnLevels = depthOf(facets.columns);
  std::vector<Rectangle> boxes;
  for (std::size_t level = 0; level < columnLevels; ++level)
    if (hasCells(1 + level, context.chart)) collectCells(true, level, boxes, context);
  for (std::size_t level = 0; level < depthOf(facets.rows); ++level)
    if (hasCells(1 + columnLevels + level, context.chart))
      collectCells(false, level, boxes, context);
  for (const Rectangle& box : boxes)
    context.parts.marks.push_back(
        rectangle(box, {{"stroke", {{"signal", "ink"}}}, {"strokeOpacity", {{"value", opacity}}}}));
}

} // namespace render
