#pragma once

#include <vector>

namespace render {

/// The ticks of a continuous axis.
struct Ticks {
  std::vector<double> values; ///< ascending multiples of 1, 2 or 5 times a power of ten
  int decimals = 0;           ///< how many decimals tell them apart
};

/// About `count` ticks within [low, high]; low < high, both finite.
Ticks ticksWithin(double low, double high, int count);

} // namespace render
