#pragma once

#include "translate/Translator.h"

namespace render {

/// Labels the ticks of a categorical axis: wrapped, and slanted where they would not
/// stand side by side. Adds the scale of the dimension's labels.
void labelCategories(Json& axis, const Dimension& dimension, Context& context);

} // namespace render
