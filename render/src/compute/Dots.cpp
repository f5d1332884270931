#include "compute/Dots.h"

#include <algorithm>
#include <cmath>

namespace render {
namespace {

constexpr double dotsAcross = 60; ///< of the range of all values

double valueOf(const Variable& place, std::size_t row) {
  return place.categorical ? place.codes[row] : place.numbers[row];
}

double shiftOf(std::string_view layout, std::size_t count) {
  if (layout == "negative") return -static_cast<double>(count);
  if (layout == "center") return -static_cast<double>(count) / 2;
  return 0;
}

/// One stack of the rows from `first` to before `last`, lowest group first.
void addStack(const Element& element, Rows::iterator first, Rows::iterator last,
              std::vector<Item>& items) {
  const Variable& place = *element.place();
  const double middle = (valueOf(place, *first) + valueOf(place, *(last - 1))) / 2;
  if (element.group != nullptr)
    std::stable_sort(first, last, [&](std::size_t one, std::size_t other) {
      return element.group->codes[one] < element.group->codes[other];
    });
  const auto count = static_cast<std::size_t>(last - first);
  const std::string_view layout = element.node->attribute("dot");
  const bool goesDown = layout == "negative";
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t row = *(first + static_cast<std::ptrdiff_t>(goesDown ? count - 1 - i : i));
    const double low = shiftOf(layout, count) + static_cast<double>(i);
    Item item{.row = row, .low = goesDown ? low + 1 : low, .high = low + 0.5, .value = 1};
    if (!place.categorical) item.from = item.to = middle;
    items.push_back(item);
  }
}

} // namespace

double dotWidth(const Element& element) {
  double low = INFINITY;
  double high = -INFINITY;
  const std::vector<double>& numbers = element.place()->numbers;
  for (std::size_t row = 0; row < numbers.size(); ++row) {
    if (!element.draws(row)) continue;
    low = std::min(low, numbers[row]);
    high = std::max(high, numbers[row]);
  }
  return high > low ? (high - low) / dotsAcross : 1;
}

std::vector<Item> dots(const Element& element, const Rows& rows) {
  const Variable& place = *element.place();
  Rows sorted = rows;
  std::ranges::stable_sort(sorted, {}, [&](std::size_t row) { return valueOf(place, row); });
  const double width = place.categorical ? 1 : dotWidth(element);
  std::vector<Item> items;
  for (auto first = sorted.begin(); first != sorted.end();) {
    const double end = valueOf(place, *first) + width;
    const auto last = std::find_if(first, sorted.end(),
                                   [&](std::size_t row) { return valueOf(place, row) >= end; });
    addStack(element, first, last, items);
    first = last;
  }
  return items;
}

} // namespace render
