#pragma once

#include "translate/Translator.h"

namespace render {

/// Labels the ticks of a categorical axis: wrapped, and slanted where they would not
/// stand side by side, or at the angle of the major ticks, which may be null; staggered ones
/// have twice the room. Where that is too little for all, every n-th has a label, which is
/// noted. Adds the scale of the dimension's labels. Returns the most lines of an upright label.
std::size_t labelCategories(Json& axis, const Dimension& dimension, const Node* majorTicks,
                            Context& context);

} // namespace render
