#include "resolve/Ticks.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace render {
namespace {

constexpr int mostPowers = 12;
constexpr double alone[] = {1};
constexpr double roundNumbers[] = {1, 2, 5};

/// As many as show the value whole, or, where it does not end, three of its digits.
int decimalsOf(double value) {
  constexpr int most = 9;
  int decimals = 0;
  for (double part = std::abs(value); decimals <= most && std::abs(part - std::round(part)) > 1e-9;
       part *= 10)
    ++decimals;
  if (decimals <= most || value == 0) return decimals;
  return std::clamp(2 - static_cast<int>(std::floor(std::log10(std::abs(value)))), 0, most);
}

int decimalsOf(const std::vector<double>& values) {
  int decimals = 0;
  for (const double value : values)
    decimals = std::max(decimals, decimalsOf(value));
  return decimals;
}

/// The multiples of each n-th power of a base, ascending.
std::vector<double> powers(double base, std::span<const double> factors, double first, double last,
                           double every) {
  std::vector<double> values;
  for (double power = first; power <= last; power += every)
    for (const double factor : factors)
      values.push_back(factor * std::pow(base, power));
  return values;
}

} // namespace

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
  Ticks ticks{.values = {}, .decimals = decimalsOf(step)};
  const double first = std::ceil(low / step - 1e-9);
  for (int i = 0; i < mostTicks && (first + i) * step <= high + step * 1e-9; ++i)
    ticks.values.push_back((first + i) * step + 0.0);
  return ticks;
}

Ticks ticksOfPowers(double base, double low, double high) {
  constexpr std::size_t few = 3;
  const double first = std::floor(std::log(low) / std::log(base) - 1e-9);
  const double last = std::ceil(std::log(high) / std::log(base) + 1e-9);
  const auto within = [&](std::span<const double> factors, double every) {
    std::vector<double> values = powers(base, factors, first, last, every);
    std::erase_if(values, [&](double value) { return value < low || value > high; });
    return values;
  };
  Ticks ticks{.values = within(alone, std::max(1.0, std::ceil((last - first) / mostPowers)))};
  if (ticks.values.size() < few && base == 10) ticks.values = within(roundNumbers, 1);
  if (ticks.values.size() < few - 1) return ticksWithin(low, high, mostPowers / 2);
  ticks.decimals = decimalsOf(ticks.values);
  return ticks;
}

Ticks ticksOfLogarithm(double base, double low, double high) {
  constexpr std::size_t few = 5;
  const double reach = std::max(std::abs(low), std::abs(high));
  if (reach <= 1) return ticksWithin(low, high, mostPowers / 2);
  const double last = std::ceil(std::log(reach) / std::log(base) + 1e-9);
  const auto within = [&](std::span<const double> factors, double every) {
    std::vector<double> values{0};
    for (const double value : powers(base, factors, 0, last, every))
      values.insert(values.end(), {value, -value});
    std::erase_if(values, [&](double value) { return value < low || value > high; });
    std::ranges::sort(values);
    return values;
  };
  Ticks ticks{.values = within(alone, std::max(1.0, std::ceil(2 * last / mostPowers)))};
  if (ticks.values.size() < few && base == 10) ticks.values = within(roundNumbers, 1);
  if (ticks.values.size() < 2) return ticksWithin(low, high, mostPowers / 2);
  ticks.decimals = decimalsOf(ticks.values);
  return ticks;
}

} // namespace render
