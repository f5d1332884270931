// Measured numbers as categories: each stands alone, as far from the next as all others.
#include <algorithm>
#include <cmath>
#include <set>
#include <variant>
#include <vector>

#include <fmt/format.h>

#include "check/Check.h"

namespace render {
namespace {

constexpr std::size_t handful = 12;

/// Years or ranks follow each other in even steps; so few may be counted or chosen.
bool isEven(const std::vector<double>& ascending) {
  const double step = ascending[1] - ascending[0];
  for (std::size_t i = 2; i < ascending.size(); ++i)
    if (std::abs(ascending[i] - ascending[i - 1] - step) > std::abs(step) * 1e-6) return false;
  return true;
}

bool isMeasured(const Variable& variable) {
  if (variable.categories.size() <= handful) return false;
  if (std::holds_alternative<DateFormat>(variable.format)) return false;
  std::vector<double> values;
  for (const Category& category : variable.categories) {
    const double value = numberOf(category.key);
    const bool isLabelled = category.expression.empty() && category.label != category.key;
    if (std::isnan(value) || isLabelled) return false;
    values.push_back(value);
  }
  const auto count =
      std::ranges::count_if(variable.codes, [](double code) { return !std::isnan(code); });
  std::ranges::sort(values);
  return static_cast<std::size_t>(count) == values.size() && !isEven(values);
}

} // namespace

void checkUnrepeatedNumbers(const Chart& chart, Report& report) {
  std::set<const Variable*> seen;
  for (const Panel& panel : chart.panels)
    for (const Dimension* dimension : {&panel.x, &panel.y}) {
      if (!dimension->categorical) continue;
      for (const Variable* variable : dimension->variables)
        if (seen.insert(variable).second && isMeasured(*variable))
          report.add(*variable,
                     fmt::format("{} is categorical along {}, and its {} values are numbers of "
                                 "which none comes twice; make it continuous, or put its values "
                                 "into ranges",
                                 called(*variable), dimension->role, variable->categories.size()));
    }
}

} // namespace render
