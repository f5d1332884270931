#pragma once

#include <string>

#include "translate/Translator.h"

namespace render {

/// Adds the scale of the colors of hexagons by how many rows they hold; gives its name.
std::string addCountScale(const Element& element, Context& context);

} // namespace render
