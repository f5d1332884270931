#pragma once

#include <vector>

#include "compute/Items.h"
#include "resolve/Element.h"

namespace render {

/// Stacks of dots: a stack begins at the lowest value that no stack has yet and takes those
/// within a dot's width; it stands in the middle of its values. Of categories each has one.
/// The n-th dot stands at n - 1/2 along the measure; downward, or about zero, where the
/// element's "dot" is "negative" or "center".
std::vector<Item> dots(const Element& element, const Rows& rows);

/// How wide a dot is along a continuous place.
double dotWidth(const Element& element);

} // namespace render
