#include <algorithm>
#include <cmath>

#include "assemble/Telling.h"
#include "translate/FacetLabels.h"
#include "translate/Space.h"
#include "translate/Style.h"

namespace render {
namespace {

/// A variable of the panels with its categories, in the order of the panels.
struct Level {
  const FacetValue* first;
  std::vector<std::string> labels{};
};

std::string tellPanels(const Telling& telling) {
  const Facets& facets = telling.chart.facets;
  if (facets.isMatrix || facets.areUnlabelled()) return {};
  std::vector<Level> levels;
  for (const std::vector<FacetCell>* cells : {&facets.columns, &facets.rows})
    for (const FacetCell& cell : *cells)
      for (const FacetValue& value : cell) {
        auto level = std::ranges::find_if(
            levels, [&value](const Level& each) { return each.first->variable == value.variable; });
        if (level == levels.end()) level = levels.insert(level, {.first = &value});
        std::string label =
            telling.label(*value.variable, value.variable->categories[value.category]);
        if (std::ranges::find(level->labels, label) == level->labels.end())
          level->labels.push_back(std::move(label));
      }
  std::vector<std::string> texts;
  texts.reserve(levels.size());
  for (const Level& level : levels)
    texts.push_back(telling.withAddition(facetTitle(*level.first, texts.size() + 1, telling.chart),
                                         telling.list(level.labels)));
  const auto count = static_cast<double>(telling.chart.panels.size());
  return telling.words("Panels^2", {telling.number(count), telling.list(texts)});
}

/// What marks reach to along the role that they measure: the ends of stacks and of the parts
/// of box plots, else their values.
std::vector<double> measuredValues(const Element& element, const Chart& chart) {
  std::vector<double> values;
  for (const Panel& panel : chart.panels)
    for (const Item& item : panel.items[element.index]) {
      const bool isStacked = isStack(element.modifier);
      if (!isStacked) values.push_back(item.value);
      if (isStacked || item.part != BoxPart::none)
        values.insert(values.end(), {item.low, item.high});
    }
  return values;
}

std::string rangeOf(const std::string& title, const Variable* variable, std::vector<double> values,
                    const Telling& telling) {
  if (values.empty()) return title;
  if (isMirrored(variable))
    for (double& value : values)
      value = std::abs(value);
  const auto [low, high] = std::ranges::minmax(values);
  return telling.range(title, variable, low, high);
}

std::string titleOf(std::string_view role, const Telling& telling) {
  static const Node untitled{};
  const Node* node = telling.chart.dimensionNode(role);
  const Node* axis = node == nullptr ? nullptr : node->child("axis");
  const std::string title =
      axisTitle(axis == nullptr ? untitled : *axis, telling.chart.panels.front().along(role));
  return title.empty() ? telling.words("Count") : title;
}

/// Whether an element has a say in what an axis is told to show: not error bars and drop
/// lines, which lead to what others show.
bool counts(const Element& element, std::string_view role) {
  const bool isMeasured = element.measuresAlong(role) && element.method != Method::none;
  return (element.along(role) != nullptr || isMeasured) && !element.isSlice &&
         element.method != Method::distribution && lookOf(*element.node) == Look::usual;
}

std::vector<double> valuesAlong(std::string_view role, const Element& element, const Chart& chart) {
  const Variable* variable = element.along(role);
  const bool isPlaced = element.method == Method::hexagons || element.method == Method::contours;
  const bool isComputed = element.method != Method::none || isStack(element.modifier);
  const bool isMeasured = element.measuresAlong(role) && isComputed && !isPlaced;
  return isMeasured || variable == nullptr ? measuredValues(element, chart)
                                           : drawnValues(element, *variable);
}

std::string tellAxis(std::string_view role, std::string_view key, const Telling& telling) {
  const Chart& chart = telling.chart;
  const Dimension& dimension = chart.panels.front().along(role);
  const auto element = std::ranges::find_if(
      chart.elements, [role](const Element& each) { return counts(each, role); });
  if (element == chart.elements.end()) return {};
  const Variable* variable = element->along(role);
  const std::string title = titleOf(role, telling);
  if (dimension.categorical) {
    std::vector<std::string> labels;
    labels.reserve(dimension.categories.size());
    for (const Category& category : dimension.categories)
      labels.push_back(variable != nullptr ? telling.label(*variable, category) : category.label);
    return telling.words(key, {telling.withAddition(title, telling.list(labels))});
  }
  std::vector<double> values;
  for (const Element& each : chart.elements)
    if (counts(each, role))
      for (const double value : valuesAlong(role, each, chart))
        values.push_back(value);
  const std::string range = rangeOf(title, variable, std::move(values), telling);
  const bool isLogarithmic =
      dimension.type == ScaleType::log || dimension.type == ScaleType::symmetricLog;
  return telling.words(key, {isLogarithmic ? telling.words("Logarithmic^1", {range}) : range});
}

/// The variables of a matrix, each once.
std::string tellVariables(const Telling& telling) {
  const Element& element = telling.chart.elements.front();
  std::vector<const Variable*> members;
  for (const Variable* position : {element.x, element.y})
    for (const Variable* member : position->isMatrix ? position->members : std::vector{position})
      if (std::ranges::find(members, member) == members.end()) members.push_back(member);
  std::vector<std::string> texts;
  texts.reserve(members.size());
  for (const Variable* member : members)
    texts.push_back(rangeOf(member->title, member, drawnValues(element, *member), telling));
  return telling.words("Variables^1", {telling.list(texts)});
}

} // namespace

std::vector<std::string> tellAxes(const Telling& telling) {
  if (telling.chart.elements.empty()) return {};
  if (telling.chart.facets.isMatrix) return {tellVariables(telling)};
  // Who reads about the x axis looks along the bottom of the picture.
  const bool isTransposed = telling.chart.isTransposed;
  std::vector<std::string> sentences{tellPanels(telling),
                                     tellAxis(isTransposed ? "y" : "x", "x axis^1", telling),
                                     tellAxis(isTransposed ? "x" : "y", "y axis^1", telling)};
  if (telling.chart.space != nullptr) sentences.push_back(tellAxis("z", "z axis^1", telling));
  return sentences;
}

} // namespace render
