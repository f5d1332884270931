#pragma once

#include "translate/Translator.h"

namespace render {

/// Adds a line through the items of each group of an element, with these properties.
void addLineMark(const Element& element, Json update, Context& context);

} // namespace render
