#pragma once

#include "translate/Translator.h"

namespace render {

/// Adds a line through the items of each group of an element, with these properties. What
/// arrow keys make of it stands in `walk`; null where they go through its items.
void addLineMark(const Element& element, Json update, const Json& walk, Context& context);

} // namespace render
