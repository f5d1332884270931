#pragma once

#include "resolve/Chart.h"

namespace render {

/// Makes the panels of the chart's facets, with what each element draws in them. The
/// bins of a histogram are those of all panels, unless its statistic says otherwise.
void makePanels(Chart& chart, Notes& notes);

} // namespace render
