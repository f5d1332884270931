#pragma once

#include <vector>

#include "compute/Items.h"

namespace render {

/// How many hexagons of a grid stand side by side.
constexpr int hexagonsAcross = 20;

/// The cells of a hexagonal grid over the values of x and y that hold rows: each item
/// stands in the middle of its cell, `value` is the count. Hexagons are regular in a
/// square; the plot stretches them.
std::vector<Item> hexagons(const Element& element, const Rows& rows);

/// How far a cell of the grid reaches from its middle: half its width along x, and the
/// distance to its upper corner along y.
struct HexagonReach {
  double x;
  double y;
};
HexagonReach hexagonReach(const Element& element, const Rows& rows);

} // namespace render
