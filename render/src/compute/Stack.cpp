#include "compute/Stack.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace render {
namespace {

using Column = std::map<double, Item>; ///< by place

double placeOf(const Element& element, const Item& item) {
  const Variable* place = element.place();
  if (place == nullptr) return 0;
  return place->categorical ? place->codes[item.row] : item.place();
}

double groupOf(const Element& element, const Item& item) {
  return element.group != nullptr ? element.group->codes[item.row]
                                  : static_cast<double>(item.member);
}

/// What a column without an item at a place has there; a row of that place stands for it
/// where the place is a category.
Item between(const Column& column, double place, bool interpolates) {
  const auto after = column.upper_bound(place);
  Item item = after == column.end() ? column.rbegin()->second : after->second;
  item.low = item.high = item.value = 0;
  if (interpolates && after != column.begin() && after != column.end()) {
    const auto before = std::prev(after);
    const double share = (place - before->first) / (after->first - before->first);
    item.high = before->second.high + share * (after->second.high - before->second.high);
    item.value = item.high;
  }
  return item;
}

/// Areas on a continuous place: every group has every place.
void fillGaps(const Element& element, std::vector<Item>& items) {
  std::map<double, Column> columns;
  std::set<double> places;
  for (const Item& item : items) {
    columns[groupOf(element, item)].try_emplace(item.place(), item);
    places.insert(item.place());
  }
  for (const auto& [group, column] : columns)
    for (const double place : places) {
      if (column.contains(place)) continue;
      Item item = between(column, place, element.modifier == Modifier::stackInterpolating);
      item.from = item.to = place;
      items.push_back(item);
    }
}

/// Puts the middle of what stands at each place at zero.
void center(const Element& element, std::vector<Item>& items) {
  std::map<double, std::pair<double, double>> ends;
  for (const Item& item : items) {
    auto& [low, high] = ends[placeOf(element, item)];
    low = std::min({low, item.low, item.high});
    high = std::max({high, item.low, item.high});
  }
  for (Item& item : items) {
    const auto& [low, high] = ends[placeOf(element, item)];
    item.low -= (low + high) / 2;
    item.high -= (low + high) / 2;
  }
}

} // namespace

void stack(const Element& element, std::vector<Item>& items) {
  const Variable* place = element.place();
  if (element.type() == "area" && place != nullptr && !place->categorical) fillGaps(element, items);
  std::ranges::stable_sort(items, {}, [&](const Item& item) {
    return std::pair(placeOf(element, item), groupOf(element, item));
  });
  std::map<double, std::pair<double, double>> ends; // below and above, of each place
  for (Item& item : items) {
    auto& [below, above] = ends[placeOf(element, item)];
    const double length = item.high - item.low;
    double& end = length < 0 ? below : above;
    item.low = end;
    end += length;
    item.high = end;
  }
  if (element.modifier == Modifier::center) center(element, items);
}

void cutAtShorter(const Element& element, std::vector<Item>& items) {
  std::ranges::stable_sort(items, {}, [&](const Item& item) {
    return std::pair(placeOf(element, item), std::abs(item.high));
  });
  std::map<std::pair<double, bool>, double> ends; // of each place, above and below zero
  for (Item& item : items) {
    const auto side = std::pair(placeOf(element, item), item.high < 0);
    const auto [before, isFirst] = ends.try_emplace(side, item.low);
    if (!isFirst) item.low = before->second;
    before->second = item.high;
  }
}

} // namespace render
