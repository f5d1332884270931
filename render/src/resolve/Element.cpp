#include "resolve/Element.h"

#include <algorithm>
#include <array>

namespace render {

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
