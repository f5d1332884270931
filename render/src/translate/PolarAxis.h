#pragma once

#include "translate/Translator.h"

namespace render {

/// The axes of a dimension's node in polar coordinates: circles with their values for what goes
/// outward, rays with their labels for what goes around.
void addPolarAxis(const Node& node, Context& context);

} // namespace render
