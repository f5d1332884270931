#include <algorithm>
#include <cmath>

#include "assemble/Telling.h"
#include "resolve/ScaleMethod.h"

namespace render {
namespace {

/// How many values lie more than 1.5 times the distance of the quartiles beyond them.
std::size_t outliersAmong(std::vector<double> values) {
  constexpr std::size_t fewest = 12;
  if (values.size() < fewest) return 0;
  const auto quantile = [&values](double share) {
    const auto at = values.begin() +
                    static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
    std::ranges::nth_element(values, at);
    return *at;
  };
  const double lower = quantile(0.25);
  const double upper = quantile(0.75);
  const double reach = 1.5 * (upper - lower);
  return static_cast<std::size_t>(std::ranges::count_if(
      values, [=](double value) { return value < lower - reach || value > upper + reach; }));
}

/// Values as far apart as their scale makes them.
std::vector<double> lengthsOf(const Element& element, const Dimension& dimension) {
  std::vector<double> lengths;
  for (const double value : drawnValues(element, *element.y))
    if (takes(value, dimension)) lengths.push_back(scaled(value, dimension));
  return lengths;
}

std::string toldOutliers(const Variable& variable, std::size_t count, const Telling& telling) {
  if (count == 0) return {};
  return telling.words("Outliers^2", {variable.title, telling.number(static_cast<double>(count))});
}

} // namespace

/// Those that box plots draw, else those of the values of points.
std::vector<std::string> tellOutliers(const Telling& telling) {
  const Chart& chart = telling.chart;
  const Variable* variable = nullptr;
  std::size_t count = 0;
  for (const Panel& panel : chart.panels)
    for (const Element& element : chart.elements)
      for (const Item& item : panel.items[element.index])
        if (item.part == BoxPart::outlier || item.part == BoxPart::extreme) {
          variable = element.measure();
          ++count;
        }
  if (variable != nullptr) return {toldOutliers(*variable, count, telling)};
  const Element* element = continuousElement(chart);
  const bool arePoints = element != nullptr && element->type() == "point" && element->isPlain() &&
                         !areOnLine(*element, chart);
  if (!arePoints) return {};
  const std::size_t far = outliersAmong(lengthsOf(*element, chart.panels.front().y));
  return {toldOutliers(*element->y, far, telling)};
}

} // namespace render
