#pragma once

#include <array>
#include <cstdint>

#include <chartxml/ChartXml.h>

namespace entry {

/// What a dimension leaves free at its ends and where it is mapped to, as the procedure
/// passed it: upper and lower margin, upper and lower mapping. Each may be absent.
using Extents = std::array<const std::int64_t*, 4>;

/// Sets those that are given. 0 or more, or the first negative result.
int setExtents(ChartXml& registry, int chart, int dimension, const Extents& extents);

} // namespace entry
