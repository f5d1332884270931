#pragma once

#include <cstddef>
#include <vector>

#include "compute/Sample.h"
#include "resolve/Notes.h"

namespace render {

/// Ranges of one width along a continuous variable; each holds its lower end.
struct Bins {
  double start = 0;
  double width = 1;
  std::size_t count = 1; ///< the last one holds its upper end too

  std::size_t of(double value) const;
  double low(std::size_t bin) const { return start + static_cast<double>(bin) * width; }

  /// The bins of a "histogram" statistic: as wide as its "bin-width", or as many as its
  /// "bins" from the lowest value to the highest; with neither as wide as 1, 2 or 5 times
  /// a power of ten, and about as many as Sturges says. Bins of a width begin at
  /// multiples of it, or at its "bin-start".
  static Bins of(const Node& statistic, const Sample& places, Notes& notes);
};

/// The value of a "parameter" child of a node, empty when there is none.
std::string_view parameter(const Node& node, std::string_view name);

} // namespace render
