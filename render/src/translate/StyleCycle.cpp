#include "translate/StyleCycle.h"

#include <algorithm>

#include <fmt/format.h>

#include "compute/Sample.h"
#include "translate/Style.h"
#include "translate/Theme.h"

namespace render {
namespace {

constexpr std::size_t colors = 8; ///< of the palette

bool isPartOfBox(const Element& element) {
  return element.summary != nullptr && element.summary->name.starts_with("tukey");
}

bool areInOneGroup(const Element& one, const Element& other, const Chart& chart) {
  const auto holds = [](const Node& group, const Element& element) {
    return std::ranges::any_of(group.children,
                               [&](const Node& child) { return &child == element.node; });
  };
  return std::ranges::any_of(chart.plot->children, [&](const Node& child) {
    return child.kind == "elementGroup" && holds(child, one) && holds(child, other);
  });
}

bool showTheSame(const Element& one, const Element& other) {
  if (one.x != other.x || one.y != other.y || one.z != other.z) return false;
  if (isPartOfBox(one) && isPartOfBox(other)) return true;
  const auto isThin = [](const Element& element) {
    return element.isLine() || element.type() == "point" || element.type() == "area";
  };
  return isThin(one) && isThin(other) && one.type() != other.type() && one.method == other.method &&
         one.summary == other.summary;
}

bool areNamedApart(const Element& one, const Element& other) {
  const std::string_view name = one.node->attribute("name");
  const std::string_view otherName = other.node->attribute("name");
  return !name.empty() && !otherName.empty() && name != otherName;
}

bool share(const Element& one, const Element& other, const Chart& chart) {
  return !areNamedApart(one, other) &&
         (areInOneGroup(one, other, chart) || showTheSame(one, other));
}

/// The colors of the elements up to one, as numbers in the order of the cycle.
std::size_t colorIndex(const Element& element, const Chart& chart) {
  std::vector<const Element*> firsts; // of each color
  for (const Element& each : chart.elements) {
    if (!hasOwnColor(each)) continue;
    const auto found = std::ranges::find_if(
        firsts, [&](const Element* first) { return share(*first, each, chart); });
    const auto index = static_cast<std::size_t>(found - firsts.begin());
    if (each.index == element.index) return index;
    if (found == firsts.end()) firsts.push_back(&each);
  }
  return 0;
}

} // namespace

bool hasOwnColor(const Element& element) {
  const bool isWhisker = element.summary != nullptr && element.summary->name == "tukeyInnerFence";
  const bool isInk =
      isWhisker || element.method == Method::distribution || lookOf(*element.node) != Look::usual;
  return element.group == nullptr && element.shade == nullptr && !isInk;
}

bool isOverFillings(const Element& element, const Chart& chart) {
  if (isPartOfBox(element)) return false;
  return std::ranges::any_of(chart.elements, [&](const Element& other) {
    const std::string_view type = other.type();
    return other.index < element.index && lookOf(*other.node) == Look::usual &&
           (type == "interval" || type == "area" || type == "schema" || type == "tile");
  });
}

std::string ownColor(const Element& element, const Chart& chart) {
  return fmt::format("palette[{}]", colorIndex(element, chart) % colors);
}

std::size_t ownShape(const Element& element, const Chart& chart) {
  return static_cast<std::size_t>(std::ranges::count_if(chart.elements, [&](const Element& each) {
    return each.index < element.index && hasOwnColor(each) && each.isLine() == element.isLine() &&
           (each.isLine() || each.type() == element.type());
  }));
}

Json lineDash(const Element& element, const Chart& chart) {
  if (!hasOwnColor(element)) return Json::array();
  const Json patterns = theme::dashes();
  return patterns[ownShape(element, chart) % patterns.size()];
}

} // namespace render
