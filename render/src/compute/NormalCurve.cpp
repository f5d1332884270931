#include "compute/NormalCurve.h"

#include <cmath>
#include <numbers>

namespace render {
namespace {

constexpr int steps = 200;
constexpr double reach = 3.5; // in standard deviations, where no bins end the curve

} // namespace

std::vector<Item> normalCurve(const Element& element, const Rows& rows, const Bins* bins) {
  std::vector<Item> items;
  for (const Rows& group : groupsOf(element, rows)) {
    std::vector<Sample::Value> values;
    for (const std::size_t row : group)
      values.push_back(
          {.value = element.place()->numbers[row], .weight = element.weightOf(row), .row = row});
    const Sample sample(std::move(values));
    const double mean = sample.mean();
    const double deviation = sample.standardDeviation();
    if (!(deviation > 0)) continue;

    const double low = bins ? bins->low(0) : mean - reach * deviation;
    const double high = bins ? bins->low(bins->count) : mean + reach * deviation;
    const double area = bins ? sample.count() * bins->width : 1;
    const double top = area / (deviation * std::sqrt(2 * std::numbers::pi));
    for (int i = 0; i <= steps; ++i) {
      const double place = low + (high - low) * i / steps;
      const double z = (place - mean) / deviation;
      const double height = top * std::exp(-z * z / 2);
      items.push_back({.row = group.front(),
                       .from = place,
                       .to = place,
                       .low = height,
                       .high = height,
                       .value = height});
    }
  }
  return items;
}

} // namespace render
