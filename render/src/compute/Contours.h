#pragma once

#include <vector>

#include "compute/Items.h"
#include "resolve/Element.h"

namespace render {

/// Lines along which the density of the rows is 10, 30, 50, 70 and 90 % of its highest, of
/// each group by itself. The density is that of normal kernels whose deviation is 1.06 times
/// the smaller of the standard deviation and the distance of the quartiles over 1.34, over
/// the fifth root of the count. Items go along the lines; "member" tells the lines apart,
/// "value" is the share in percent.
std::vector<Item> contours(const Element& element, const Rows& rows);

} // namespace render
