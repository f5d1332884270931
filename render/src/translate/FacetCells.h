#pragma once

#include <cstddef>
#include <vector>

#include "translate/Translator.h"

/// Panels as the cells of a table: neighbours that belong together, and how the document's
/// cell styles set them off.
namespace render {

/// Neighbouring cells that are alike down to a level, and where they stand.
struct Run {
  const FacetValue* value;
  double middle;
  double length;

  double start() const { return middle - length / 2; }
};

std::vector<Run> runsOf(const std::vector<FacetCell>& cells, std::size_t level,
                        const std::vector<double>& starts, double length);

/// How many levels columns or rows have.
std::size_t depthOf(const std::vector<FacetCell>& cells);

/// Whether the label of a level, counted from 1 with the columns first, names a style of
/// its cells. That of level 0, the frame as a whole, is the paper.
bool hasCells(std::size_t level, const Chart& chart);

struct Rectangle {
  double x, y, width, height;

  bool operator==(const Rectangle&) const = default;
};

/// The shaded ground of a label.
void addStrip(const Rectangle& box, Context& context);

/// Lines around the panels of each level that has cells.
void addCellFrames(Context& context);

} // namespace render
