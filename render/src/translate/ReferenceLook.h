#pragma once

#include "translate/Translator.h"

namespace render {

/// The dash pattern of a line across the plot, which the number in its id chooses: the role
/// times 100 plus the index of a style. Lines of one style look alike, but for an upright and a
/// level one that have names: a legend tells those apart.
Json dashOf(const Node& guide, const Chart& chart);

} // namespace render
