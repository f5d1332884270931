#include "compute/Contours.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>

#include "compute/Sample.h"

namespace render {
namespace {

constexpr std::size_t cells = 128; ///< of the grid, along each side
constexpr std::array<double, 5> levels{10, 30, 50, 70, 90};

using Grid = std::vector<double>; ///< row by row from the lowest y, `cells` values each

/// The grid's places along one variable.
struct Side {
  double start = 0;
  double step = 0;
  double bandwidth = 0;

  double at(double index) const { return start + index * step; }
};

Side sideOf(const Element& element, const Variable& variable, const Rows& rows) {
  std::vector<Sample::Value> values;
  for (const std::size_t row : rows)
    values.push_back({.value = variable.numbers[row], .weight = element.weightOf(row), .row = row});
  const Sample sample(std::move(values));
  const double quartiles =
      sample.atRank((3 * sample.count() + 1) / 4) - sample.atRank((sample.count() + 3) / 4);
  const double deviation = sample.standardDeviation();
  const double spread = quartiles > 0 ? std::min(deviation, quartiles / 1.34) : deviation;
  Side side;
  side.bandwidth = 1.06 * spread * std::pow(sample.count(), -0.2);
  side.start = sample.low() - 3 * side.bandwidth;
  side.step = (sample.high() - sample.low() + 6 * side.bandwidth) / (cells - 1);
  return side;
}

/// Each row shared among the four places around it.
Grid countsOf(const Element& element, const Rows& rows, const Side& x, const Side& y) {
  Grid counts(cells * cells);
  for (const std::size_t row : rows) {
    const double i = (element.x->numbers[row] - x.start) / x.step;
    const double j = (element.y->numbers[row] - y.start) / y.step;
    const auto left = static_cast<std::size_t>(i);
    const auto below = static_cast<std::size_t>(j);
    const double right = i - std::floor(i);
    const double up = j - std::floor(j);
    double* const cell = &counts[below * cells + left];
    const double weight = element.weightOf(row);
    cell[0] += weight * (1 - right) * (1 - up);
    cell[1] += weight * right * (1 - up);
    cell[cells] += weight * (1 - right) * up;
    cell[cells + 1] += weight * right * up;
  }
  return counts;
}

/// Spreads each value along one side, whose neighbours are `stride` apart.
Grid spread(const Grid& grid, const Side& side, std::size_t stride) {
  std::array<double, cells> kernel{};
  for (std::size_t i = 0; i < cells; ++i) {
    const double distance = static_cast<double>(i) * side.step / side.bandwidth;
    kernel[i] = std::exp(-distance * distance / 2);
  }
  Grid smooth(grid.size());
  const std::size_t across = cells * cells / stride == cells ? 1 : cells;
  for (std::size_t line = 0; line < cells; ++line)
    for (std::size_t from = 0; from < cells; ++from) {
      const double value = grid[line * across + from * stride];
      if (value == 0) continue;
      for (std::size_t to = 0; to < cells; ++to)
        smooth[line * across + to * stride] += value * kernel[from > to ? from - to : to - from];
    }
  return smooth;
}

/// Where a contour crosses an edge of the grid: one that begins at a corner and goes right
/// or, with an odd number, up.
using Crossing = std::size_t;

Crossing crossingOf(std::size_t column, std::size_t row, bool goesUp) {
  return (row * cells + column) * 2 + (goesUp ? 1 : 0);
}

/// The pairs of edges of a cell that a contour joins, by which of its corners (from the
/// lower left one, counterclockwise) are above it. Edges: below, right, above, left.
constexpr std::array<std::array<int, 4>, 16> joins{{{-1, -1, -1, -1},
                                                    {3, 0, -1, -1},
                                                    {0, 1, -1, -1},
                                                    {3, 1, -1, -1},
                                                    {1, 2, -1, -1},
                                                    {3, 0, 1, 2},
                                                    {0, 2, -1, -1},
                                                    {3, 2, -1, -1},
                                                    {2, 3, -1, -1},
                                                    {0, 2, -1, -1},
                                                    {0, 1, 2, 3},
                                                    {1, 2, -1, -1},
                                                    {1, 3, -1, -1},
                                                    {0, 1, -1, -1},
                                                    {0, 3, -1, -1},
                                                    {-1, -1, -1, -1}}};

using Neighbours = std::map<Crossing, std::vector<Crossing>>;

Neighbours neighboursOf(const Grid& grid, double level) {
  Neighbours neighbours;
  for (std::size_t row = 0; row + 1 < cells; ++row)
    for (std::size_t column = 0; column + 1 < cells; ++column) {
      const std::array<std::size_t, 4> corners{row * cells + column, row * cells + column + 1,
                                               (row + 1) * cells + column + 1,
                                               (row + 1) * cells + column};
      std::size_t above = 0;
      for (std::size_t corner = 0; corner < 4; ++corner)
        above |= (grid[corners[corner]] > level ? 1U : 0U) << corner;
      const std::array<Crossing, 4> edges{
          crossingOf(column, row, false), crossingOf(column + 1, row, true),
          crossingOf(column, row + 1, false), crossingOf(column, row, true)};
      for (std::size_t i = 0; i < 4 && joins[above][i] >= 0; i += 2) {
        const Crossing one = edges[static_cast<std::size_t>(joins[above][i])];
        const Crossing other = edges[static_cast<std::size_t>(joins[above][i + 1])];
        neighbours[one].push_back(other);
        neighbours[other].push_back(one);
      }
    }
  return neighbours;
}

/// A line from a crossing on, as far as it goes.
std::vector<Crossing> lineFrom(Crossing start, const Neighbours& neighbours,
                               std::set<Crossing>& used) {
  std::vector<Crossing> line{start};
  used.insert(start);
  for (bool goesOn = true; goesOn;) {
    goesOn = false;
    for (const Crossing next : neighbours.at(line.back())) {
      if (!used.insert(next).second) continue;
      line.push_back(next);
      goesOn = true;
      break;
    }
  }
  const std::vector<Crossing>& ends = neighbours.at(line.back());
  if (line.size() > 2 && std::ranges::find(ends, start) != ends.end()) line.push_back(start);
  return line;
}

class Lines {
public:
  Lines(const Grid& grid, const Side& x, const Side& y, std::size_t row, std::vector<Item>& items)
      : grid_(grid), x_(x), y_(y), row_(row), items_(items) {}

  void add(double percent) {
    level_ = *std::ranges::max_element(grid_) * percent / 100;
    const Neighbours neighbours = neighboursOf(grid_, level_);
    std::set<Crossing> used;
    for (const bool isOpen : {true, false})
      for (const auto& [crossing, joined] : neighbours) {
        const bool begins = !used.contains(crossing) && (joined.size() == 1) == isOpen;
        if (begins) addLine(lineFrom(crossing, neighbours, used), percent);
      }
  }

private:
  void addLine(const std::vector<Crossing>& line, double percent) {
    const std::size_t member = items_.empty() ? 0 : items_.back().member + 1;
    for (const Crossing crossing : line) {
      Item item = itemAt(crossing);
      item.value = percent;
      item.member = member;
      items_.push_back(item);
    }
  }

  Item itemAt(Crossing crossing) const {
    const std::size_t corner = crossing / 2;
    const bool goesUp = crossing % 2 == 1;
    const double here = grid_[corner];
    const double there = grid_[corner + (goesUp ? cells : 1)];
    const double share = (level_ - here) / (there - here);
    const auto column = static_cast<double>(corner % cells);
    const std::size_t above = corner / cells;
    const auto row = static_cast<double>(above);
    const double place = x_.at(column + (goesUp ? 0 : share));
    const double height = y_.at(row + (goesUp ? share : 0));
    return {.row = row_, .from = place, .to = place, .low = height, .high = height};
  }

  const Grid& grid_;
  const Side& x_;
  const Side& y_;
  std::size_t row_;
  std::vector<Item>& items_;
  double level_ = 0;
};

} // namespace

std::vector<Item> contours(const Element& element, const Rows& rows) {
  std::vector<Item> items;
  for (const Rows& group : groupsOf(element, rows)) {
    const Side x = sideOf(element, *element.x, group);
    const Side y = sideOf(element, *element.y, group);
    if (!(x.bandwidth > 0) || !(y.bandwidth > 0)) continue; // all values are one
    const Grid counts = countsOf(element, group, x, y);
    const Grid density = spread(spread(counts, x, 1), y, cells);
    Lines lines(density, x, y, group.front(), items);
    for (const double level : levels)
      lines.add(level);
  }
  return items;
}

} // namespace render
