#pragma once

#include "translate/Translator.h"

namespace render {

/// Labels the ticks of a categorical axis: wrapped, and slanted where they would not
/// stand side by side; staggered ones have twice the room. Adds the scale of the dimension's
/// labels. Returns the most lines of an upright label.
std::size_t labelCategories(Json& axis, const Dimension& dimension, bool isStaggered,
                            Context& context);

} // namespace render
