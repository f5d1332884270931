#pragma once

#include "resolve/Chart.h"

namespace render {

/// Gives a dimension the extent of what the chart's elements draw along it (the
/// variable that `position` names), with the margins of its node. Elements of
/// another kind of scale than the first cannot share it: they are noted and taken
/// out of the chart.
void fitDimension(Dimension& dimension, const Variable* Element::* position, Chart& chart,
                  Notes& notes);

} // namespace render
