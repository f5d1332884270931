#pragma once

#include "translate/Translator.h"

namespace render {

/// The axes of a dimension's node in polar coordinates: circles with their values for what goes
/// outward, rays with their labels for what goes around.
/// `role` is "x" or "y".
void addPolarAxis(const Node& node, std::string_view role, Context& context);

} // namespace render
