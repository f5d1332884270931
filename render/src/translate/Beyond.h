#pragma once

#include "resolve/Chart.h"

namespace render {

/// Whether a value lies so far beyond the ends that the chart asks for that nothing is drawn
/// outside the axes: the picture would be as large as the value is far.
bool liesFarBeyond(const Chart& chart);

/// Tells how many values lie beyond the ends that the chart asks for, and what becomes of
/// them. Without such ends there are none.
void noteValuesBeyond(const Chart& chart, Notes& notes);

} // namespace render
