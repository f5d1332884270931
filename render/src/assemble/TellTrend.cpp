#include <cmath>
#include <functional>
#include <optional>

#include "assemble/Telling.h"
#include "resolve/ScaleMethod.h"
#include "translate/Style.h"

namespace render {
namespace {

bool isContinuous(const Variable* variable) {
  return variable != nullptr && variable->texts != nullptr && !variable->categorical;
}

/// A value as long as the scale of a role makes it.
using Length = std::function<double(double)>;

double asIs(double value) { return value; }

/// That of an axis, along which a trend is seen.
Length lengthAlong(std::string_view role, const Chart& chart) {
  const Dimension& dimension = chart.panels.front().along(role);
  return [&dimension](double value) { return scaled(value, dimension); };
}

/// Pearson's correlation in the rows that an element draws, or in those of a group; nothing
/// where one side does not vary.
std::optional<double> correlation(const Element& element, const Variable& one,
                                  const Variable& other, const Length& oneLength = asIs,
                                  const Length& otherLength = asIs,
                                  std::optional<double> group = {}) {
  double rows = 0;
  double weight = 0;
  double meanX = 0;
  double meanY = 0;
  const auto forEachRow = [&](const auto& take) {
    for (std::size_t row = 0; row < one.numbers.size(); ++row) {
      if (!element.draws(row) || (group && element.group->codes[row] != *group)) continue;
      const double x = oneLength(one.numbers[row]);
      const double y = otherLength(other.numbers[row]);
      if (std::isfinite(x) && std::isfinite(y)) take(x, y, element.weightOf(row));
    }
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

/// In two digits, and in more where two would make it a perfect one.
std::string rounded(double correlation, const Telling& telling) {
  double value = correlation;
  for (const double scale : {100, 1000, 10000}) {
    value = std::round(correlation * scale) / scale;
    if (std::abs(value) < 1) break;
  }
  return telling.number(value);
}

/// From here on a correlation is told as a trend.
constexpr double clear = 0.3;

std::string tellDirection(const Telling& telling) {
  const Chart& chart = telling.chart;
  const Element* element = continuousElement(chart);
  if (element == nullptr) return {};
  const std::optional<double> r = correlation(*element, *element->x, *element->y,
                                              lengthAlong("x", chart), lengthAlong("y", chart));
  if (!r) return {};
  const Panel& panel = chart.panels.front();
  const bool isEven = panel.x.type == ScaleType::linear && panel.y.type == ScaleType::linear;
  std::string text = rounded(*r, telling);
  if (!isEven) text = telling.words("On these scales^1", {text});
  if (std::abs(*r) < clear) return telling.words("No trend^1", {text});
  return telling.words(*r > 0 ? "Rising^1" : "Falling^1", {text});
}

/// Groups can go another way than all rows together.
std::string tellGroupTrends(const Telling& telling) {
  const Chart& chart = telling.chart;
  const Element* element = continuousElement(chart);
  if (element == nullptr || element->group == nullptr) return {};
  const auto& categories = element->group->categories;
  if (categories.size() < 2 || categories.size() > mostListed) return {};
  std::vector<std::string> texts;
  for (std::size_t code = 0; code < categories.size(); ++code) {
    const auto r = correlation(*element, *element->x, *element->y, lengthAlong("x", chart),
                               lengthAlong("y", chart), static_cast<double>(code));
    if (r)
      texts.push_back(
          telling.pair(telling.label(*element->group, categories[code]), rounded(*r, telling)));
  }
  return texts.empty() ? std::string() : telling.words("Within groups^1", {telling.list(texts)});
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

} // namespace

const Element* continuousElement(const Chart& chart) {
  if (chart.facets.isMatrix || chart.space != nullptr || chart.isPolar) return nullptr;
  const Element* line = nullptr;
  for (const Element& element : chart.elements) {
    // Every survival curve falls, and a control chart is about what is beyond its limits.
    if (isOfSurvival(element) || isOfControlChart(element)) return nullptr;
    const bool showsRows = element.isPlain() || element.method == Method::hexagons ||
                           element.method == Method::contours;
    if (!showsRows || lookOf(*element.node) != Look::usual) continue;
    if (!isContinuous(element.x) || !isContinuous(element.y)) continue;
    if (!element.isLine()) return &element;
    if (line == nullptr) line = &element;
  }
  return line;
}

std::vector<std::string> tellTrend(const Telling& telling) {
  return {tellDirection(telling), tellGroupTrends(telling), tellStrongest(telling)};
}

} // namespace render
