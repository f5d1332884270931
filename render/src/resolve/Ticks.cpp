#include "resolve/Ticks.h"

#include <cmath>

namespace render {

Ticks ticksWithin(double low, double high, int count) {
  const double rough = (high - low) / count;
  const int power = static_cast<int>(std::floor(std::log10(rough)));
  const double mantissa = rough / std::pow(10.0, power);
  // Between two candidates the geometric mean decides.
  double factor = 1;
  if (mantissa >= std::sqrt(2.0)) factor = 2;
  if (mantissa >= std::sqrt(10.0)) factor = 5;
  if (mantissa >= std::sqrt(50.0)) factor = 10;
  const int stepPower = factor == 10 ? power + 1 : power;
  const double digit = factor == 10 ? 1 : factor;

  // Below one, multiples are divided by a whole number: 3 / 10, not 3 * 0.1.
  const double scale = std::pow(10.0, std::abs(stepPower));
  const auto multiple = [&](double i) {
    return stepPower < 0 ? i * digit / scale : i * digit * scale;
  };
  const double step = multiple(1);
  Ticks ticks;
  ticks.decimals = stepPower < 0 ? -stepPower : 0;
  constexpr int mostTicks = 100;
  const double first = std::ceil(low / step);
  for (int i = 0; i < mostTicks && multiple(first + i) <= high; ++i)
    ticks.values.push_back(multiple(first + i) + 0.0); // no negative zero
  return ticks;
}

} // namespace render
