#pragma once

#include "translate/Translator.h"

namespace render {

/// The axes of a dimension in polar coordinates: circles with their values for what goes
/// outward, rays with their labels for what goes around.
void addPolarAxis(const Node& dimension, Context& context);

} // namespace render
