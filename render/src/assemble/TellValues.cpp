#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <unordered_map>

#include "assemble/Telling.h"
#include "translate/Style.h"

namespace render {
namespace {

bool isTold(const Element& element) { return lookOf(*element.node) == Look::usual; }

/// Whether marks are for rows as the data have them. How many rows were counted before, or
/// make up a line, says nothing.
bool showsRows(const Element& element) {
  const bool isJoined = element.isLine() || element.type() == "area" || element.hasBase;
  return isTold(element) && !isCensored(*element.node) &&
         (element.method != Method::none || !isJoined);
}

/// The first element with groups, those that show rows before others.
const Element* groupedElement(const Chart& chart) {
  const Element* first = nullptr;
  for (const Element& element : chart.elements) {
    if (element.group == nullptr || element.group == element.place()) continue;
    if (showsRows(element)) return &element;
    if (first == nullptr) first = &element;
  }
  return first;
}

/// "Species: Adélie (151), Gentoo (123)" of the first element with groups.
std::string tellGroups(const Telling& telling) {
  const Element* grouped = groupedElement(telling.chart);
  if (grouped == nullptr || grouped->isSlice) return {};
  const Variable& group = *grouped->group;
  std::unordered_map<std::string_view, std::size_t> rowsOf;
  for (std::size_t row = 0; row < group.texts->size(); ++row)
    if (grouped->draws(row)) ++rowsOf[(*group.texts)[row]];

  const bool areCounted = showsRows(*grouped);
  std::vector<std::string> labels;
  for (const Category& category : group.categories) {
    const auto count = static_cast<double>(rowsOf[category.key]);
    labels.push_back(telling.withAddition(telling.label(group, category),
                                          areCounted ? telling.number(count) : std::string()));
  }
  if (labels.empty()) return {};
  return telling.words(areCounted ? "Groups^2" : "Group names^2",
                       {group.title, telling.list(labels)});
}

struct Drawn {
  const Item* item;
  const Panel* panel;
};

struct Told {
  const Item* item;
  std::vector<std::string> labels;     ///< of the panel, the place and the group
  std::vector<std::string> fullLabels; ///< the same where bare numbers have a title
  std::array<double, 3> order;         ///< as they are drawn
};

bool isBareNumber(const std::string& text) { return !std::isnan(numberOf(text)); }

void addLabel(const Variable& variable, const std::string& text, const Telling& telling,
              Told& told) {
  if (text.find_first_not_of(' ') == text.npos) return;
  told.labels.push_back(text);
  const bool needsTitle = !variable.categorical || isBareNumber(text);
  told.fullLabels.push_back(needsTitle ? telling.pair(variable.title, text) : text);
}

void addCategory(const Variable* variable, const Item& item, const Telling& telling, Told& told) {
  if (variable == nullptr || !variable->categorical || std::isnan(variable->codes[item.row]))
    return;
  const auto code = static_cast<std::size_t>(variable->codes[item.row]);
  addLabel(*variable, telling.label(*variable, variable->categories[code]), telling, told);
}

/// Where each category stands along an axis, by its key.
using Places = std::map<std::string_view, double>;

Places placesOf(const Element& element, const Chart& chart) {
  Places places;
  const Dimension& dimension = chart.panels.front().along(element.measuresX ? "y" : "x");
  for (const Category& category : dimension.categories)
    places.emplace(category.key, static_cast<double>(places.size()));
  return places;
}

double placeOf(const Item& item, const Variable* place, const Places& places) {
  if (place == nullptr) return 0;
  if (!place->categorical) return item.place();
  if (std::isnan(place->codes[item.row])) return 0;
  const auto found =
      places.find(place->categories[static_cast<std::size_t>(place->codes[item.row])].key);
  return found == places.end() ? 0 : found->second;
}

Told toldOf(const Drawn& drawn, const Element& element, const Telling& telling) {
  const auto& [item, panel] = drawn;
  Told told{.item = item, .labels = {}, .fullLabels = {}, .order = {}};
  const Facets& facets = telling.chart.facets;
  for (const FacetCell* cell : {&facets.columns[panel->column], &facets.rows[panel->row]})
    for (const FacetValue& value : *cell)
      addLabel(*value.variable,
               telling.label(*value.variable, value.variable->categories[value.category]), telling,
               told);
  const Variable* place = element.place();
  if (place != nullptr && !place->categorical)
    addLabel(*place, telling.value(place, item->place()), telling, told);
  else
    addCategory(place, *item, telling, told);
  if (element.group != place) addCategory(element.group, *item, telling, told);
  return told;
}

/// What is told of few items, in the order in which they are drawn.
std::vector<Told> inOrder(const std::vector<Drawn>& all, const Element& element,
                          const Telling& telling) {
  const Places places = placesOf(element, telling.chart);
  const bool isGrouped = element.group != nullptr && element.group->categorical;
  std::vector<Told> told;
  for (const Drawn& drawn : all) {
    Told each = toldOf(drawn, element, telling);
    if (each.labels.empty()) continue;
    each.order = {static_cast<double>(drawn.panel - telling.chart.panels.data()),
                  placeOf(*drawn.item, element.place(), places),
                  isGrouped ? element.group->codes[drawn.item->row] : 0};
    told.push_back(std::move(each));
  }
  std::ranges::stable_sort(told, {}, &Told::order);
  return told;
}

/// Whether an element has one value at each of its places. A line through points of other
/// values only leads the eye.
bool hasValues(const Element& element, const Chart& chart) {
  if (element.isSlice) return true;
  if (!isTold(element) || element.place() == nullptr || element.type() == "tile" ||
      element.method == Method::dots || chart.facets.isMatrix || chart.folder->manifest.icicle)
    return false;
  if (element.place()->categorical) return true;
  const bool isSeries = element.method == Method::none || element.method == Method::summary;
  const bool isDrawnOut =
      element.isLine() || (element.type() == "area" && !element.isComposed()) || element.hasBase;
  const bool areBesidePoints = std::ranges::any_of(chart.elements, [&](const Element& each) {
    return each.type() == "point" && isTold(each) && !areOnLine(each, chart);
  });
  return isSeries && isDrawnOut && !areBesidePoints && !isOfSurvival(element);
}

std::string tellItem(const Told& told, const Element& element, const Telling& telling) {
  const Variable* measure = element.measure();
  const std::string label = telling.list(told.labels);
  if (element.isComposed()) return telling.range(label, measure, told.item->low, told.item->high);
  return telling.pair(label, telling.value(measure, told.item->value));
}

/// Of many values the ends: "5.5 (7, Drug 2)".
std::string tellEnds(const std::vector<Drawn>& all, const Element& element,
                     const Telling& telling) {
  const Variable* measure = element.measure();
  const bool isRange = element.isComposed();
  const bool hasNoSign = isMirrored(measure);
  const auto size = [hasNoSign](double value) { return hasNoSign ? std::abs(value) : value; };
  const auto lowOf = [&](const Drawn& drawn) {
    return size(isRange ? drawn.item->low : drawn.item->value);
  };
  const auto highOf = [&](const Drawn& drawn) {
    return size(isRange ? drawn.item->high : drawn.item->value);
  };
  const auto text = [&](const Drawn& drawn, double value) {
    return telling.withAddition(telling.value(measure, value),
                                telling.list(toldOf(drawn, element, telling).fullLabels));
  };
  const Drawn& low = *std::ranges::min_element(all, {}, lowOf);
  const Drawn& high = *std::ranges::max_element(all, {}, highOf);
  return telling.words("Highest and lowest^2", {text(high, highOf(high)), text(low, lowOf(low))});
}

/// Each piece with its share of the whole.
std::string tellPieces(const std::vector<Told>& all, const Element& element,
                       const Telling& telling) {
  double sum = 0;
  for (const Told& told : all)
    sum += told.item->value;
  std::vector<std::string> texts;
  for (const Told& told : all) {
    const double share = std::round(told.item->value / sum * 1000) / 10;
    texts.push_back(telling.withAddition(tellItem(told, element, telling),
                                         telling.words("Percent^1", {telling.number(share)})));
  }
  const std::string list = telling.list(texts);
  return element.group == nullptr ? telling.words("Values^1", {list})
                                  : telling.words("Pieces^2", {element.group->title, list});
}

/// Each value, or the ends of many.
std::string tellItems(const Telling& telling) {
  const Chart& chart = telling.chart;
  const auto element = std::ranges::find_if(
      chart.elements, [&chart](const Element& each) { return hasValues(each, chart); });
  if (element == chart.elements.end()) return {};
  std::vector<Drawn> drawn;
  bool areMedians = false;
  for (const Panel& panel : chart.panels)
    for (const Item& item : panel.items[element->index]) {
      if (item.part != BoxPart::none && item.part != BoxPart::median) continue;
      areMedians = item.part == BoxPart::median;
      drawn.push_back({.item = &item, .panel = &panel});
    }
  if (drawn.size() > mostListed) return tellEnds(drawn, *element, telling);
  const std::vector<Told> all = inOrder(drawn, *element, telling);
  if (all.empty()) return {};
  if (element->isSlice && !chart.facets.isSplit()) return tellPieces(all, *element, telling);
  std::vector<std::string> texts;
  texts.reserve(all.size());
  for (const Told& told : all)
    texts.push_back(tellItem(told, *element, telling));
  return telling.words(areMedians ? "Medians^1" : "Values^1", {telling.list(texts)});
}

/// Where survival curves end, one for each group.
std::string tellLastSteps(const Telling& telling) {
  const auto& elements = telling.chart.elements;
  const auto curve = std::ranges::find_if(elements, [](const Element& each) {
    return each.isLine() && isOfSurvival(each) && each.group != nullptr;
  });
  if (curve == elements.end() || telling.chart.facets.isSplit()) return {};
  std::map<double, const Item*> lastOf;
  for (const Item& item : telling.chart.panels.front().items[curve->index]) {
    const Item*& last = lastOf[curve->group->codes[item.row]];
    const bool isLater = last == nullptr || item.place() > last->place() ||
                         (item.place() == last->place() && item.value < last->value);
    if (isLater) last = &item;
  }
  std::vector<std::string> texts;
  texts.reserve(lastOf.size());
  for (const auto& [code, item] : lastOf)
    texts.push_back(telling.pair(
        telling.label(*curve->group, curve->group->categories[static_cast<std::size_t>(code)]),
        telling.value(curve->measure(), item->value)));
  return texts.empty() ? std::string() : telling.words("At the end^1", {telling.list(texts)});
}

} // namespace

std::vector<std::string> tellValues(const Telling& telling) {
  return {tellGroups(telling), tellItems(telling), tellLastSteps(telling)};
}

} // namespace render
