#pragma once

#include <vector>

#include "resolve/Element.h"

namespace render {

/// Puts what stands at one place on top of each other, in the order of the groups: what
/// goes up on what goes up, what goes down under what goes down. Where an area has no
/// value of a group that others have, it gets one: nothing, or what lies between its
/// neighbours when the element's modifier interpolates.
/// A centered stack has its middle at zero.
void stack(const Element& element, std::vector<Item>& items);

/// Lets each of what stands at one place begin where the next shorter one ends, so that
/// nothing lies over the other.
void cutAtShorter(const Element& element, std::vector<Item>& items);

} // namespace render
