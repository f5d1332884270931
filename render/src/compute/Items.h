#pragma once

#include <cstddef>
#include <vector>

#include "compute/Bins.h"
#include "resolve/Element.h"

namespace render {

/// The rows of an element that belong together, by what it is split by: the same
/// categories of its group and splits.
using Rows = std::vector<std::size_t>;
std::vector<Rows> groupsOf(const Element& element, const Rows& rows);

/// What an element draws for some of the rows, with `bins` for a histogram and for the
/// normal curve over one.
std::vector<Item> itemsOf(const Element& element, const Rows& rows, const Bins* bins);

/// How much of its range between two neighbours a bar on a continuous place fills.
constexpr double barShare = 0.8;

} // namespace render
