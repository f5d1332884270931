#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "read/Node.h"
#include "resolve/Variable.h"

namespace render {

/// What an element's statistic makes of its rows.
enum class Method : std::uint8_t {
  none,         ///< a mark for each row
  summary,      ///< values of the rows at one place, by `summary`
  share,        ///< their share of a whole, in percent
  histogram,    ///< counts in ranges of a continuous place
  distribution, ///< the normal curve through the mean of the places
  hexagons,     ///< counts in the cells of a hexagonal grid
  dots,         ///< each row stands on those before it at about the same place
  contours,     ///< lines of equal density of the rows
};

/// What becomes of marks at the same place.
enum class Modifier : std::uint8_t {
  none,
  stack,
  stackInterpolating,
  center,            ///< a stack about zero
  minusIntersection, ///< longer marks begin where shorter ones end
  dodge,
};

constexpr bool isStack(Modifier modifier) {
  return modifier == Modifier::stack || modifier == Modifier::stackInterpolating ||
         modifier == Modifier::center;
}

/// Which part of a box plot a mark is.
enum class BoxPart : std::uint8_t { none, whisker, box, median, outlier, extreme };

/// What an element draws for a row, or for the rows that a statistic sums up. Where its
/// place is a category, or its measure has none, the numbers mean nothing.
struct Item {
  std::size_t row; ///< the first of its rows: its categories are those of the item
  double from = 0; ///< where it stands along its place; the same as `to` for a point
  double to = 0;
  double low = 0;  ///< where it begins along its measure: that of a point, or a base
  double high = 0; ///< where it ends; below `low` when it goes down from its base
  double value = 0;
  std::size_t member = 0; ///< of a variable that is composed of others
  BoxPart part = BoxPart::none;

  double place() const { return from + (to - from) / 2; }
};

struct Summary;

/// A graphic element that can be drawn: its variables have data, of one source.
struct Element {
  const Node* node;
  std::size_t index = 0; ///< among the elements of the chart
  const Variable* x = nullptr;
  const Variable* y = nullptr;
  const Variable* z = nullptr;           ///< of a chart in space
  const Variable* group = nullptr;       ///< tells groups apart by color and shape
  const Variable* shape = nullptr;       ///< tells them apart by shape, where color does not
  std::vector<const Variable*> splits{}; ///< tell rows apart; that of the shape is one
  const Variable* shade = nullptr;       ///< colors marks along a range of colors
  const Variable* size = nullptr;        ///< sizes marks by its values
  std::vector<const Variable*> labels{}; ///< are written at the marks, one line each
  const Variable* weight = nullptr;      ///< counts each row as often as it says
  const Node* statistic = nullptr;

  Method method = Method::none;
  const Summary* summary = nullptr; ///< of Method::summary
  Modifier modifier = Modifier::none;
  bool hasBase = false;            ///< its marks reach from a base to what they measure
  bool measuresX = false;          ///< its places are along y
  bool hasPatterns = false;        ///< tell its groups apart, where it fills something
  bool hasColoredPatterns = false; ///< those in the colors of its groups
  bool isSlice = false;            ///< it measures an angle and has no place

  const Variable* place() const { return measuresX ? y : x; }
  const Variable* measure() const { return measuresX ? x : y; }
  const Variable* along(std::string_view role) const {
    if (role == "z") return z;
    return role == "x" ? x : y;
  }
  bool measuresAlong(std::string_view role) const { return (role == "x") == measuresX; }
  std::string_view type() const { return node->attribute("type"); }
  /// Whether a line joins what it shows: along its place, or as the rows go.
  bool isLine() const;
  /// Whether its marks show rows as they are.
  bool isPlain() const {
    return method == Method::none && modifier == Modifier::none && !hasBase && !isComposed();
  }
  bool isComposed() const;
  /// Whether it draws other variables in each panel.
  bool isOfMatrix() const;
  /// Whether a row has every value that the element needs.
  bool draws(std::size_t row) const;
  double weightOf(std::size_t row) const { return weight ? weight->numbers[row] : 1; }
};

} // namespace render
