#include "compute/Items.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

#include "compute/Contours.h"
#include "compute/Dots.h"
#include "compute/Hexagons.h"
#include "compute/NormalCurve.h"
#include "compute/Stack.h"

namespace render {
namespace {

/// Where a row stands along a variable: a number, or that of its category.
double placeOf(const Variable* variable, std::size_t row) {
  if (variable == nullptr) return 0;
  return variable->categorical ? variable->codes[row] : variable->numbers[row];
}

Item itemAt(const Element& element, std::size_t row, double place) {
  const bool standsAtNumber = element.place() != nullptr && !element.place()->categorical;
  return {.row = row, .from = standsAtNumber ? place : 0, .to = standsAtNumber ? place : 0};
}

Item measured(Item item, double low, double high) {
  item.low = low;
  item.high = high;
  item.value = high;
  return item;
}

/// The members of a variable, or itself.
std::vector<const Variable*> membersOf(const Variable* variable) {
  if (variable == nullptr || variable->members.empty()) return {variable};
  return variable->members;
}

/// A mark for each value of the row: one, but for variables composed of others.
void addPoints(const Element& element, std::size_t row, std::vector<Item>& items) {
  const auto places = membersOf(element.place());
  const auto measures = membersOf(element.measure());
  const std::size_t count = std::max(places.size(), measures.size());
  for (std::size_t i = 0; i < count; ++i) {
    const Variable* place = places[std::min(i, places.size() - 1)];
    const Variable* measure = measures[std::min(i, measures.size() - 1)];
    const bool isMissing = (place != nullptr && place->isMissing(row)) ||
                           (measure != nullptr && measure->isMissing(row));
    if (isMissing) continue;
    const double value = placeOf(measure, row);
    Item item = measured(itemAt(element, row, placeOf(place, row)), value, value);
    item.member = i;
    items.push_back(item);
  }
}

/// From the lowest of the row's values to the highest.
void addRange(const Element& element, std::size_t row, std::vector<Item>& items) {
  double low = std::numeric_limits<double>::infinity();
  double high = -low;
  for (const Variable* member : element.measure()->members) {
    if (member->isMissing(row)) continue;
    low = std::min(low, member->numbers[row]);
    high = std::max(high, member->numbers[row]);
  }
  items.push_back(measured(itemAt(element, row, placeOf(element.place(), row)), low, high));
}

/// Whether a mark reaches from the lowest of a row's values to the highest.
bool isRangeOfRow(const Element& element) {
  const bool hasOnePlace = element.place() == nullptr || element.place()->members.empty();
  return hasOnePlace && element.measure() != nullptr && !element.measure()->members.empty() &&
         (element.hasBase || (element.summary != nullptr && element.summary->name == "range"));
}

std::vector<Item> itemOfEachRow(const Element& element, const Rows& rows) {
  const bool isRange = isRangeOfRow(element);
  std::vector<Item> items;
  items.reserve(rows.size());
  for (const std::size_t row : rows)
    isRange ? addRange(element, row, items) : addPoints(element, row, items);
  return items;
}

/// Whether marks reach from one value to another; others reach from their base.
bool isRange(const Element& element) {
  if (element.method == Method::none) return isRangeOfRow(element);
  return element.method == Method::summary && element.summary->name == "range";
}

Sample sampleOf(const Element& element, const Rows& rows) {
  std::vector<Sample::Value> values;
  for (const std::size_t row : rows)
    for (const Variable* member : membersOf(element.measure()))
      if (member == nullptr || !member->isMissing(row))
        values.push_back(
            {.value = placeOf(member, row), .weight = element.weightOf(row), .row = row});
  return Sample(std::move(values));
}

std::vector<Item> summarised(const Element& element, const Rows& rows) {
  std::vector<Item> items;
  for (const Rows& group : groupsOf(element, rows)) {
    std::map<double, Rows> rowsOfPlace;
    for (const std::size_t row : group)
      rowsOfPlace[placeOf(element.place(), row)].push_back(row);
    double before = 0;
    for (const auto& [place, together] : rowsOfPlace) {
      for (const Span& span : element.summary->spans(sampleOf(element, together))) {
        const double start = element.summary->runs ? before : 0;
        Item item = measured(itemAt(element, span.row, place), start + span.low, start + span.high);
        item.part = span.part;
        before = item.high;
        items.push_back(item);
      }
    }
  }
  return items;
}

/// The share of each group at a place in all of the place, or in all of the element.
std::vector<Item> shares(const Element& element, const Rows& rows) {
  const bool countsRows = element.measure() == nullptr;
  Element parts = element;
  parts.summary = findSummary(countsRows ? "count" : "sum");
  std::vector<Item> items = summarised(parts, rows);
  const bool isOfPlace = parameter(*element.statistic, "base") == "place";
  const auto wholeOf = [&](const Item& item) {
    return isOfPlace ? placeOf(element.place(), item.row) : 0;
  };
  std::map<double, double> wholes;
  for (const Item& item : items)
    wholes[wholeOf(item)] += std::abs(item.high);
  for (Item& item : items) {
    const double whole = wholes[wholeOf(item)];
    const double percent = whole > 0 ? 100 * item.high / whole : 0;
    item = measured(item, percent, percent);
  }
  return items;
}

std::vector<Item> histogram(const Element& element, const Rows& rows, const Bins& bins) {
  std::vector<Item> items;
  for (const Rows& group : groupsOf(element, rows)) {
    std::map<std::size_t, Item> itemOfBin;
    for (const std::size_t row : group) {
      const std::size_t bin = bins.of(element.place()->numbers[row]);
      Item& item =
          itemOfBin
              .try_emplace(bin, Item{.row = row, .from = bins.low(bin), .to = bins.low(bin + 1)})
              .first->second;
      item = measured(item, 0, item.high + element.weightOf(row));
    }
    for (const auto& [bin, item] : itemOfBin)
      items.push_back(item);
  }
  return items;
}

/// Bars at numbers are as wide as the closest two allow.
void widen(std::vector<Item>& items) {
  std::vector<double> places;
  places.reserve(items.size());
  for (const Item& item : items)
    places.push_back(item.from);
  std::ranges::sort(places);
  double gap = std::numeric_limits<double>::infinity();
  for (std::size_t i = 1; i < places.size(); ++i)
    if (places[i] > places[i - 1]) gap = std::min(gap, places[i] - places[i - 1]);
  const double half = barShare / 2 * (std::isinf(gap) ? 1 : gap);
  for (Item& item : items) {
    item.from -= half;
    item.to += half;
  }
}

bool isBar(const Element& element) {
  return element.type() == "interval" || element.type() == "schema";
}

std::vector<Item> made(const Element& element, const Rows& rows, const Bins* bins) {
  switch (element.method) {
  case Method::summary:
    return summarised(element, rows);
  case Method::share:
    return shares(element, rows);
  case Method::histogram:
    return histogram(element, rows, *bins);
  case Method::distribution:
    return normalCurve(element, rows, bins);
  case Method::hexagons:
    return hexagons(element, rows);
  case Method::dots:
    return dots(element, rows);
  case Method::contours:
    return contours(element, rows);
  case Method::none:
    break;
  }
  return itemOfEachRow(element, rows);
}

} // namespace

std::vector<Rows> groupsOf(const Element& element, const Rows& rows) {
  std::map<std::vector<double>, Rows> groups;
  for (const std::size_t row : rows) {
    std::vector<double> key{placeOf(element.group, row)};
    for (const Variable* split : element.splits)
      key.push_back(placeOf(split, row));
    groups[std::move(key)].push_back(row);
  }
  std::vector<Rows> all;
  all.reserve(groups.size());
  for (auto& [key, group] : groups)
    all.push_back(std::move(group));
  return all;
}

std::vector<Item> itemsOf(const Element& element, const Rows& rows, const Bins* bins) {
  Rows drawn;
  for (const std::size_t row : rows)
    if (element.draws(row)) drawn.push_back(row);
  std::vector<Item> items;
  if (!drawn.empty()) items = made(element, drawn, bins);

  if (element.hasBase && !isRange(element))
    for (Item& item : items)
      if (item.low == item.high && item.part == BoxPart::none) item.low = 0;
  if (isStack(element.modifier)) stack(element, items);
  if (element.modifier == Modifier::minusIntersection) cutAtShorter(element, items);
  const bool isAtNumbers = element.place() != nullptr && !element.place()->categorical;
  if (isBar(element) && isAtNumbers && element.method != Method::histogram) widen(items);
  return items;
}

} // namespace render
