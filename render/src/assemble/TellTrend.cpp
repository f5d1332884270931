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

/// Of the rows of a group: the means, then the sums of squares about them.
struct Moments {
  double rows = 0, weight = 0, meanX = 0, meanY = 0, xx = 0, yy = 0, xy = 0;

  void count(double x, double y, double w) {
    rows += 1;
    weight += w;
    meanX += w * x;
    meanY += w * y;
  }
  void divide() {
    meanX /= weight;
    meanY /= weight;
  }
  void square(double x, double y, double w) {
    xx += w * (x - meanX) * (x - meanX);
    yy += w * (y - meanY) * (y - meanY);
    xy += w * (x - meanX) * (y - meanY);
  }
  /// Pearson's; nothing where one side does not vary.
  std::optional<double> correlation() const {
    const double result = xy / std::sqrt(xx) / std::sqrt(yy);
    return rows >= 3 && std::isfinite(result) ? std::optional(result) : std::nullopt;
  }
};

/// Two variables, as long as the scales along which they are seen make their values.
struct Sides {
  const Variable& x;
  const Variable& y;
  Length xLength = asIs;
  Length yLength = asIs;
};

Sides sidesOf(const Element& element, const Chart& chart) {
  return {.x = *element.x,
          .y = *element.y,
          .xLength = lengthAlong("x", chart),
          .yLength = lengthAlong("y", chart)};
}

/// The correlations in the rows that an element draws: one for each category of `group`, or
/// without it that of all rows.
std::vector<std::optional<double>> correlations(const Element& element, const Sides& sides,
                                                const Variable* group = nullptr) {
  std::vector<Moments> moments(group == nullptr ? 1 : group->categories.size());
  const auto forEachRow = [&](const auto& take) {
    for (std::size_t row = 0; row < sides.x.numbers.size(); ++row) {
      if (!element.draws(row)) continue;
      const double x = sides.xLength(sides.x.numbers[row]);
      const double y = sides.yLength(sides.y.numbers[row]);
      const auto code = group == nullptr ? 0 : static_cast<std::size_t>(group->codes[row]);
      if (std::isfinite(x) && std::isfinite(y)) take(moments[code], x, y, element.weightOf(row));
    }
  };
  forEachRow([](Moments& of, double x, double y, double w) { of.count(x, y, w); });
  for (Moments& each : moments)
    each.divide();
  forEachRow([](Moments& of, double x, double y, double w) { of.square(x, y, w); });
  std::vector<std::optional<double>> all;
  all.reserve(moments.size());
  for (const Moments& each : moments)
    all.push_back(each.correlation());
  return all;
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
  const std::optional<double> r = correlations(*element, sidesOf(*element, chart)).front();
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
  const auto all = correlations(*element, sidesOf(*element, chart), element->group);
  for (std::size_t code = 0; code < categories.size(); ++code) {
    const std::optional<double>& r = all[code];
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
      const auto r =
          correlations(telling.chart.elements.front(), {.x = *all[i], .y = *all[j]}).front();
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
