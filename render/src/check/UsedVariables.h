#pragma once

#include <vector>

#include "resolve/Chart.h"

namespace render {

/// The variables that the chart shows or sorts by, with those that they are composed of,
/// in the order of the document.
std::vector<const Variable*> usedVariables(const Chart& chart);

} // namespace render
