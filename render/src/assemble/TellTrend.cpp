#include <algorithm>
#include <cmath>
#include <optional>

#include "assemble/Telling.h"

namespace render {
namespace {

bool isContinuous(const Variable* variable) {
  return variable != nullptr && variable->texts != nullptr && !variable->categorical;
}

/// Pearson's correlation in the rows that an element draws; nothing where one side does not
/// vary.
std::optional<double> correlation(const Element& element, const Variable& one,
                                  const Variable& other) {
  double rows = 0;
  double weight = 0;
  double meanX = 0;
  double meanY = 0;
  const auto forEachRow = [&](const auto& take) {
    for (std::size_t row = 0; row < one.numbers.size(); ++row)
      if (element.draws(row)) take(one.numbers[row], other.numbers[row], element.weightOf(row));
  };
  forEachRow([&](double x, double y, double w) {
    rows += 1;
    weight += w;
    meanX += w * x;
    meanY += w * y;
  });
  if (rows < 3) return std::nullopt;
  meanX /= weight;
  meanY /= weight;
  double xx = 0;
  double yy = 0;
  double xy = 0;
  forEachRow([&](double x, double y, double w) {
    xx += w * (x - meanX) * (x - meanX);
    yy += w * (y - meanY) * (y - meanY);
    xy += w * (x - meanX) * (y - meanY);
  });
  const double result = xy / std::sqrt(xx) / std::sqrt(yy);
  return std::isfinite(result) ? std::optional(result) : std::nullopt;
}

std::string rounded(double correlation, const Telling& telling) {
  return telling.number(std::round(correlation * 100) / 100);
}

/// The first element whose marks show two continuous values of a row.
const Element* continuousElement(const Chart& chart) {
  const auto found = std::ranges::find_if(chart.elements, [](const Element& element) {
    return element.isPlain() && isContinuous(element.x) && isContinuous(element.y);
  });
  return found == chart.elements.end() ? nullptr : &*found;
}

/// From here on a correlation is told as a trend.
constexpr double clear = 0.3;

std::string tellDirection(const Telling& telling) {
  const Element* element = continuousElement(telling.chart);
  if (element == nullptr || telling.chart.space != nullptr) return {};
  const std::optional<double> r = correlation(*element, *element->x, *element->y);
  if (!r) return {};
  const std::string text = rounded(*r, telling);
  if (std::abs(*r) < clear) return telling.words("No trend^1", {text});
  return telling.words(*r > 0 ? "Rising^1" : "Falling^1", {text});
}

/// The variables of a matrix or of a plot in space; else none.
std::vector<const Variable*> manyVariables(const Chart& chart) {
  if (chart.elements.empty() || (!chart.facets.isMatrix && chart.space == nullptr)) return {};
  std::vector<const Variable*> all;
  const Element& element = chart.elements.front();
  for (const Variable* position : {element.x, element.y, element.z})
    if (position != nullptr && position->isMatrix)
      all.insert(all.end(), position->members.begin(), position->members.end());
    else if (position != nullptr)
      all.push_back(position);
  return all;
}

std::string tellStrongest(const Telling& telling) {
  const std::vector<const Variable*> all = manyVariables(telling.chart);
  const Variable* strongest[2] = {};
  double best = 0;
  for (std::size_t i = 0; i < all.size(); ++i)
    for (std::size_t j = i + 1; j < all.size(); ++j) {
      if (all[i] == all[j]) continue;
      const auto r = correlation(telling.chart.elements.front(), *all[i], *all[j]);
      if (!r || std::abs(*r) < std::abs(best) + 1e-9) continue;
      best = *r;
      strongest[0] = all[i];
      strongest[1] = all[j];
    }
  if (std::abs(best) < clear) return {};
  return telling.words("Strongest^3",
                       {strongest[0]->title, strongest[1]->title, rounded(best, telling)});
}

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

/// Those that box plots draw, else those of the values of an element.
std::string tellOutliers(const Telling& telling) {
  const Variable* variable = nullptr;
  std::size_t count = 0;
  for (const Panel& panel : telling.chart.panels)
    for (const Element& element : telling.chart.elements)
      for (const Item& item : panel.items[element.index])
        if (item.part == BoxPart::outlier || item.part == BoxPart::extreme) {
          variable = element.measure();
          ++count;
        }
  const Element* element = continuousElement(telling.chart);
  if (variable == nullptr && element != nullptr) {
    variable = element->y;
    count = outliersAmong(drawnValues(*element, *element->y));
  }
  if (variable == nullptr || count == 0) return {};
  return telling.words("Outliers^2", {variable->title, telling.number(static_cast<double>(count))});
}

} // namespace

std::vector<std::string> tellTrend(const Telling& telling) {
  return {tellDirection(telling), tellStrongest(telling), tellOutliers(telling)};
}

} // namespace render
