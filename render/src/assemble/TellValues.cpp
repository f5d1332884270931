#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>

#include <fmt/format.h>

#include "assemble/Telling.h"
#include "translate/Style.h"

namespace render {
namespace {

/// Bars and areas of numbers that were counted before: how many rows they take says nothing.
bool showsRows(const Element& element) {
  return element.method != Method::none || !element.hasBase;
}

/// "Species: Adélie (151), Gentoo (123)" of the first element with groups.
std::string tellGroups(const Telling& telling) {
  const auto& elements = telling.chart.elements;
  const auto grouped = std::ranges::find_if(elements, [](const Element& element) {
    return element.group != nullptr && element.group != element.place();
  });
  if (grouped == elements.end() || grouped->isSlice) return {};
  const Variable& group = *grouped->group;
  std::unordered_map<std::string_view, std::size_t> rowsOf;
  for (std::size_t row = 0; row < group.texts->size(); ++row)
    if (grouped->draws(row)) ++rowsOf[(*group.texts)[row]];

  std::vector<std::string> labels;
  for (const Category& category : group.categories) {
    labels.push_back(telling.label(group, category));
    if (showsRows(*grouped))
      labels.back() +=
          fmt::format(" ({})", telling.number(static_cast<double>(rowsOf[category.key])));
  }
  if (labels.empty()) return {};
  return telling.words(showsRows(*grouped) ? "Groups^2" : "Group names^2",
                       {group.title, listed(labels)});
}

struct Told {
  const Item* item;
  std::string label;
  std::array<double, 3> order; ///< by panel, place and group, as they are drawn
};

/// The categories that an item stands for, those of its panel first.
std::string labelOf(const Item& item, const Element& element, const Panel& panel,
                    const Telling& telling) {
  std::vector<std::string> labels;
  const auto add = [&](const Variable* variable) {
    if (variable == nullptr || !variable->categorical || std::isnan(variable->codes[item.row]))
      return;
    const auto code = static_cast<std::size_t>(variable->codes[item.row]);
    labels.push_back(telling.label(*variable, variable->categories[code]));
  };
  const Facets& facets = telling.chart.facets;
  for (const FacetCell* cell : {&facets.columns[panel.column], &facets.rows[panel.row]})
    for (const FacetValue& value : *cell)
      labels.push_back(telling.label(*value.variable, value.variable->categories[value.category]));
  add(element.place());
  if (element.group != element.place()) add(element.group);
  return listed(labels);
}

/// Whether an element has one value at each of its categories.
bool hasValues(const Element& element) {
  const bool isOfCategories =
      element.isSlice || (element.place() != nullptr && element.place()->categorical);
  const Look look = lookOf(*element.node);
  return isOfCategories && (look == Look::usual) && element.type() != "tile";
}

std::string tellItem(const Told& told, const Element& element, const Telling& telling) {
  const Variable* measure = element.measure();
  if (element.isComposed())
    return telling.words("Range^3", {told.label, telling.value(measure, told.item->low),
                                     telling.value(measure, told.item->high)});
  return fmt::format("{}: {}", told.label, telling.value(measure, told.item->value));
}

/// Each value, or the ends of many.
std::string tellItems(const Telling& telling) {
  const auto& elements = telling.chart.elements;
  const auto element = std::ranges::find_if(elements, hasValues);
  if (element == elements.end()) return {};
  std::vector<Told> all;
  bool areMedians = false;
  for (const Panel& panel : telling.chart.panels)
    for (const Item& item : panel.items[element->index]) {
      if (item.part != BoxPart::none && item.part != BoxPart::median) continue;
      areMedians = item.part == BoxPart::median;
      const auto code = [&item](const Variable* variable) {
        return variable != nullptr && variable->categorical ? variable->codes[item.row] : 0;
      };
      std::string label = labelOf(item, *element, panel, telling);
      if (label.empty()) continue;
      all.push_back({.item = &item,
                     .label = std::move(label),
                     .order = {static_cast<double>(&panel - telling.chart.panels.data()),
                               code(element->place()), code(element->group)}});
    }
  std::ranges::stable_sort(all, {}, &Told::order);
  if (all.empty()) return {};
  if (all.size() > mostListed) {
    const auto [low, high] =
        std::ranges::minmax_element(all, {}, [](const Told& told) { return told.item->value; });
    return telling.words("Highest and lowest^2",
                         {tellItem(*high, *element, telling), tellItem(*low, *element, telling)});
  }
  std::vector<std::string> texts;
  texts.reserve(all.size());
  for (const Told& told : all)
    texts.push_back(tellItem(told, *element, telling));
  return telling.words(areMedians ? "Medians^1" : "Values^1", {listed(texts)});
}

std::string tellBins(const Telling& telling) {
  const auto& elements = telling.chart.elements;
  const auto element = std::ranges::find(elements, Method::histogram, &Element::method);
  if (element == elements.end()) return {};
  const Item* fullest = nullptr;
  for (const Panel& panel : telling.chart.panels)
    for (const Item& item : panel.items[element->index])
      if (fullest == nullptr || item.value > fullest->value) fullest = &item;
  if (fullest == nullptr) return {};
  return telling.words("Fullest bin^3", {telling.value(element->place(), fullest->from),
                                         telling.value(element->place(), fullest->to),
                                         telling.number(fullest->value)});
}

} // namespace

std::vector<std::string> tellValues(const Telling& telling) {
  return {tellGroups(telling), tellItems(telling), tellBins(telling)};
}

} // namespace render
