#pragma once

#include "translate/Translator.h"

namespace render {

/// The area of the symbols of all points that no variable sizes: where many lie close to each
/// other they are smaller, so that they do not run into one another. The same in all panels.
int symbolSize(Context& context);

/// How thick the outline of a symbol of that area is.
double symbolOutline(double size);

} // namespace render
