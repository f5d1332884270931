#include "resolve/Ticks.h"

#include <algorithm>
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

double stepWithin(double range, int count) {
  const std::vector<double> ticks = ticksWithin(0, range, count).values;
  return ticks.size() > 1 ? ticks[1] : range;
}

Ticks ticksEvery(double step, double low, double high) {
  constexpr int mostTicks = 100;
  Ticks ticks;
  for (double part = step; ticks.decimals < 9 && std::abs(part - std::round(part)) > 1e-9;
       part *= 10)
    ++ticks.decimals;
  const double first = std::ceil(low / step - 1e-9);
  for (int i = 0; i < mostTicks && (first + i) * step <= high + step * 1e-9; ++i)
    ticks.values.push_back((first + i) * step + 0.0);
  return ticks;
}

Ticks ticksOfPowers(double base, double low, double high) {
  constexpr std::size_t few = 3;
  constexpr std::size_t most = 12;
  const double first = std::floor(std::log(low) / std::log(base) - 1e-9);
  const double last = std::ceil(std::log(high) / std::log(base) + 1e-9);
  const auto within = [&](const std::vector<double>& factors, double every) {
    std::vector<double> values;
    for (double power = first; power <= last; power += every)
      for (const double factor : factors) {
        const double value = factor * std::pow(base, power);
        if (value >= low && value <= high) values.push_back(value);
      }
    return values;
  };
  Ticks ticks{.values = within({1}, std::max(1.0, std::ceil((last - first) / most)))};
  if (ticks.values.size() < few && base == 10) ticks.values = within({1, 2, 5}, 1);
  if (ticks.values.size() < few - 1) return ticksWithin(low, high, static_cast<int>(most / 2));
  const double smallest = ticks.values.front();
  if (smallest < 1)
    ticks.decimals = std::min(9, static_cast<int>(std::ceil(-std::log10(smallest))));
  return ticks;
}

Ticks ticksOfLogarithm(double base, double low, double high) {
  const double reach = std::max(std::abs(low), std::abs(high));
  if (reach <= base) return ticksWithin(low, high, 6);
  Ticks ticks;
  for (const double power : ticksOfPowers(base, base, reach).values) {
    if (-power >= low) ticks.values.push_back(-power);
    if (power <= high && power >= low) ticks.values.push_back(power);
  }
  if (low <= 0 && high >= 0) ticks.values.push_back(0);
  std::ranges::sort(ticks.values);
  return ticks;
}

} // namespace render
