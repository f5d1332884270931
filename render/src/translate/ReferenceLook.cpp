#include "translate/ReferenceLook.h"

#include <charconv>
#include <iterator>
#include <set>

#include "translate/Theme.h"

namespace render {
namespace {

constexpr std::size_t styles = 100; ///< that a role has room for

/// The number at the end of an id; 0 without one.
std::size_t numberOf(const Node& guide) {
  const std::string_view id = guide.id();
  const std::size_t before = id.find_last_not_of("0123456789");
  const std::string_view digits = before == id.npos ? id : id.substr(before + 1);
  std::size_t number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

bool isNamedLine(const Node& node) {
  return node.kind == "guide" && node.attribute("type") == "line" &&
         !node.attribute("name").empty();
}

} // namespace

Json dashOf(const Node& guide, const Chart& chart) {
  const std::size_t number = numberOf(guide);
  const std::size_t index = number % styles > 0 ? number % styles - 1 : 0;
  if (!isNamedLine(guide)) return theme::referenceDash(index);
  std::set<std::size_t> numbers;
  std::set<std::size_t> indices;
  for (const Node& node : chart.plot->children) {
    if (!isNamedLine(node)) continue;
    numbers.insert(numberOf(node));
    indices.insert(numberOf(node) % styles);
  }
  if (numbers.size() == indices.size()) return theme::referenceDash(index);
  const auto rank = std::distance(numbers.begin(), numbers.find(number));
  return theme::referenceDash(static_cast<std::size_t>(rank));
}

} // namespace render
