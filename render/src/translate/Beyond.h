#pragma once

#include "resolve/Chart.h"

namespace render {

/// Tells how many values lie beyond the ends that the chart asks for, and what becomes of
/// them. Without such ends there are none.
void noteValuesBeyond(const Chart& chart, Notes& notes);

} // namespace render
