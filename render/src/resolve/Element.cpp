#include "resolve/Element.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace render {

bool Element::isLine() const {
  static constexpr std::array<std::string_view, 3> lines{"line", "path", "edge"};
  return std::ranges::find(lines, type()) != lines.end();
}

bool Element::isComposed() const {
  return (x != nullptr && !x->members.empty()) || (y != nullptr && !y->members.empty());
}

bool Element::isOfMatrix() const {
  return (x != nullptr && x->isMatrix) || (y != nullptr && y->isMatrix);
}

bool Element::draws(std::size_t row) const {
  const auto has = [row](const Variable* variable) {
    return variable == nullptr || !variable->isMissing(row);
  };
  const std::array<const Variable*, 6> needed{x, y, z, group, shade, size};
  return std::ranges::all_of(needed, has) && std::ranges::all_of(splits, has) && has(weight) &&
         weightOf(row) > 0;
}

} // namespace render
