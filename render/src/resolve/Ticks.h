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

/// 1, 2 or 5 times a power of ten, about `count` of which make `range`.
double stepWithin(double range, int count);

/// Ticks at each multiple of `step` within [low, high]; at most a hundred.
Ticks ticksEvery(double step, double low, double high);

/// Ticks at powers of a base within [low, high], both above zero; with 2 and 5 times
/// between powers of ten when there are few.
Ticks ticksOfPowers(double base, double low, double high);

/// The same for a scale of logarithms that goes on through zero, evenly between -1 and 1:
/// zero, and powers of the base above and below.
Ticks ticksOfLogarithm(double base, double low, double high);

} // namespace render
