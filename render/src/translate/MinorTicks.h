#pragma once

#include "translate/Translator.h"

namespace render {

/// Adds the ticks between those of an axis, as an axis of their own.
void addMinorTicks(const Json& major, const Node& minorTicks, const Dimension& dimension,
                   Context& context);

} // namespace render
