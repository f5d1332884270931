#pragma once

#include "resolve/Chart.h"

namespace render {

/// Takes out of the chart what cannot share a dimension with its first element: a
/// continuous scale with a categorical one. It is noted.
void agreeOnKinds(Chart& chart, Notes& notes);

/// Gives the dimensions of every panel the extent of what is drawn along them, with the
/// domain, scale and margins of their nodes: that of all panels, or of each where a
/// dimension's facets do not share it. A side where marks have their base gets no margin.
void fitDimensions(Chart& chart, Notes& notes);

} // namespace render
