#pragma once

#include "resolve/Chart.h"

namespace render {

/// Reads the elements of the plot, those of its groups among them; what makes one that
/// cannot be drawn is noted.
void readElements(Chart& chart, Notes& notes);

} // namespace render
