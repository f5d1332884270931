#include "compute/Hexagons.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace render {
namespace {

struct Range {
  double low = std::numeric_limits<double>::infinity();
  double high = -low;

  static Range of(const Variable& variable, const Rows& rows) {
    Range range;
    for (const std::size_t row : rows) {
      range.low = std::min(range.low, variable.numbers[row]);
      range.high = std::max(range.high, variable.numbers[row]);
    }
    return range;
  }
  double length() const { return high > low ? high - low : 1; }
};

/// A row of hexagons is 1.5 of these apart from the next.
const double side = 1 / std::sqrt(3.0);

struct Cell {
  double x; ///< in widths of a hexagon; odd rows are shifted by half
  double y; ///< in rows

  double distance(double atX, double atY) const {
    return std::hypot(atX - x, atY - y * 1.5 * side);
  }
  auto operator<=>(const Cell&) const = default;
};

/// The cell that a point in widths of a hexagon is closest to: of the row below and
/// of the row above.
Cell cellOf(double x, double y) {
  const auto nearest = [x](double row) {
    const double shift = std::fmod(row, 2) == 0 ? 0 : 0.5;
    // What is between two goes to the right, into the plot: the lowest value is at zero.
    return Cell{.x = std::floor(x - shift + 0.5) + shift, .y = row};
  };
  const double row = std::floor(y / (1.5 * side));
  const Cell below = nearest(row);
  const Cell above = nearest(row + 1);
  return above.distance(x, y) < below.distance(x, y) ? above : below;
}

} // namespace

HexagonReach hexagonReach(const Element& element, const Rows& rows) {
  return {.x = Range::of(*element.x, rows).length() / hexagonsAcross / 2,
          .y = Range::of(*element.y, rows).length() / hexagonsAcross * side};
}

std::vector<Item> hexagons(const Element& element, const Rows& rows) {
  const Range xs = Range::of(*element.x, rows);
  const Range ys = Range::of(*element.y, rows);
  const double width = xs.length() / hexagonsAcross;
  const double height = ys.length() / hexagonsAcross;
  std::map<std::pair<double, Cell>, Item> itemOfCell;
  for (const std::size_t row : rows) {
    const Cell cell = cellOf((element.x->numbers[row] - xs.low) / width,
                             (element.y->numbers[row] - ys.low) / height);
    const double group = element.group ? element.group->codes[row] : 0;
    const double x = xs.low + cell.x * width;
    const double y = ys.low + cell.y * 1.5 * side * height;
    Item& item =
        itemOfCell
            .try_emplace({group, cell}, Item{.row = row, .from = x, .to = x, .low = y, .high = y})
            .first->second;
    item.value += element.weightOf(row);
  }
  std::vector<Item> items;
  items.reserve(itemOfCell.size());
  for (const auto& [cell, item] : itemOfCell)
    items.push_back(item);
  return items;
}

} // namespace render
