#pragma once

#include <vector>

#include "compute/Items.h"

namespace render {

/// The normal distribution with the mean and the standard deviation of the element's
/// places, one for each group: as many cases as there are in bins of the same width, so
/// that it fits the histogram; its density when there are no bins.
std::vector<Item> normalCurve(const Element& element, const Rows& rows, const Bins* bins);

} // namespace render
