#include "resolve/Scale.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <unordered_set>

#include <fmt/format.h>

namespace render {
namespace {

constexpr double usualMargin = 0.05;

/// A margin as a share of the values' range, from "5%".
double margin(const Node* node, std::string_view name, Notes& notes) {
  const std::string_view text = node ? node->attribute(name) : std::string_view();
  if (text.empty()) return usualMargin;
  double percent = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), percent);
  const bool isPercent =
      error == std::errc() && end + 1 == text.data() + text.size() && *end == '%';
  if (isPercent && percent >= 0 && percent <= 1000) return percent / 100;
  notes.add(fmt::format("{}: {}=\"{}\" is not a percentage", node->name(), name, text));
  return usualMargin;
}

const Node* dimensionNode(const Node& plot, std::string_view role) {
  const auto found = std::ranges::find_if(plot.children, [role](const Node& child) {
    return child.kind == "dimension" && child.attribute("role") == role;
  });
  return found == plot.children.end() ? nullptr : &*found;
}

void fitCategories(Dimension& dimension) {
  std::unordered_set<std::string_view> known;
  for (const Variable* variable : dimension.variables)
    for (const Category& category : variable->categories)
      if (known.insert(category.key).second) dimension.categories.push_back(category);
}

void fitRange(Dimension& dimension, const Variable* Element::* position, const Chart& chart,
              Notes& notes) {
  double low = std::numeric_limits<double>::infinity();
  double high = -low;
  for (const Element& element : chart.elements) {
    const std::vector<double>& numbers = (element.*position)->numbers;
    for (std::size_t row = 0; row < numbers.size(); ++row) {
      if (!element.draws(row)) continue;
      low = std::min(low, numbers[row]);
      high = std::max(high, numbers[row]);
    }
  }
  if (low > high) {
    notes.add(fmt::format("there are no values to draw along {}", dimension.role));
    return;
  }
  // A range that numbers can still divide, also when all values are one.
  const double least = std::max(std::abs(low), std::abs(high)) * 1e-9;
  if (high - low <= least) {
    const double half = least > 0 ? std::abs(low) * usualMargin : 0.5;
    low -= half;
    high += half;
  }
  const Node* node = dimensionNode(*chart.plot, dimension.role);
  const double range = high - low;
  dimension.low = low - range * margin(node, "lowerMargin", notes);
  dimension.high = high + range * margin(node, "upperMargin", notes);
}

} // namespace

void fitDimension(Dimension& dimension, const Variable* Element::* position, Chart& chart,
                  Notes& notes) {
  if (!chart.elements.empty())
    dimension.categorical = (chart.elements.front().*position)->categorical;
  std::erase_if(chart.elements, [&](const Element& element) {
    const bool fits = (element.*position)->categorical == dimension.categorical;
    if (!fits)
      notes.add(fmt::format("{} is not drawn: its {} is {}, that of the first element is not",
                            element.node->name(), dimension.role,
                            dimension.categorical ? "continuous" : "categorical"));
    return !fits;
  });
  for (const Element& element : chart.elements) {
    const Variable* variable = element.*position;
    if (std::ranges::find(dimension.variables, variable) == dimension.variables.end())
      dimension.variables.push_back(variable);
  }
  if (dimension.categorical)
    fitCategories(dimension);
  else
    fitRange(dimension, position, chart, notes);
}

} // namespace render
