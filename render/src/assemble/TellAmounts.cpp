#include <algorithm>

#include "assemble/Telling.h"

namespace render {
namespace {

const Element* elementWith(Method method, const Chart& chart) {
  const auto element = std::ranges::find(chart.elements, method, &Element::method);
  return element == chart.elements.end() ? nullptr : &*element;
}

const Item* fullestItem(const Element* element, const Chart& chart) {
  const Item* fullest = nullptr;
  if (element == nullptr) return fullest;
  for (const Panel& panel : chart.panels)
    for (const Item& item : panel.items[element->index])
      if (fullest == nullptr || item.value > fullest->value) fullest = &item;
  return fullest;
}

std::string tellBins(const Telling& telling) {
  const Element* element = elementWith(Method::histogram, telling.chart);
  const Item* fullest = fullestItem(element, telling.chart);
  if (fullest == nullptr) return {};
  return telling.words("Fullest bin^3", {telling.value(element->place(), fullest->from),
                                         telling.value(element->place(), fullest->to),
                                         telling.number(fullest->value)});
}

std::string tellHexagons(const Telling& telling) {
  const Element* element = elementWith(Method::hexagons, telling.chart);
  const Item* fullest = fullestItem(element, telling.chart);
  if (fullest == nullptr) return {};
  return telling.words("Fullest hexagon^3",
                       {telling.number(fullest->value), telling.value(element->x, fullest->from),
                        telling.value(element->y, fullest->low)});
}

/// The row of the lowest or of the highest value of a variable, with its values along the
/// axes.
std::string tellCell(const Element& element, const Variable& variable, std::size_t row,
                     const Telling& telling) {
  std::vector<std::string> labels;
  for (const Variable* place : {element.x, element.y}) {
    const auto code = static_cast<std::size_t>(place->codes[row]);
    labels.push_back(telling.label(*place, place->categories[code]));
  }
  return telling.withAddition(telling.value(&variable, variable.numbers[row]),
                              telling.list(labels));
}

/// What the colors or the sizes of an element say, and of a table of colors where they are
/// at their ends.
std::vector<std::string> tellScale(const Element& element, const Variable* variable,
                                   std::string_view key, const Telling& telling) {
  if (variable == nullptr || variable->categorical) return {};
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < variable->numbers.size(); ++row)
    if (element.draws(row)) rows.push_back(row);
  if (rows.empty()) return {};
  const auto valueOf = [variable](std::size_t row) { return variable->numbers[row]; };
  const auto [low, high] = std::ranges::minmax(rows, {}, valueOf);
  std::vector<std::string> sentences{
      telling.words(key, {telling.range(variable->title, variable, valueOf(low), valueOf(high))})};
  const bool isTable = element.type() == "tile" && element.x != nullptr && element.y != nullptr &&
                       element.x->categorical && element.y->categorical;
  if (isTable)
    sentences.push_back(
        telling.words("Highest and lowest^2", {tellCell(element, *variable, high, telling),
                                               tellCell(element, *variable, low, telling)}));
  return sentences;
}

} // namespace

std::vector<std::string> tellAmounts(const Telling& telling) {
  std::vector<std::string> sentences{tellBins(telling), tellHexagons(telling)};
  for (const Element& element : telling.chart.elements) {
    std::ranges::copy(tellScale(element, element.shade, "Colors^1", telling),
                      std::back_inserter(sentences));
    std::ranges::copy(tellScale(element, element.size, "Sizes^1", telling),
                      std::back_inserter(sentences));
  }
  return sentences;
}

} // namespace render
