#pragma once

#include <string>

#include <host/XDocument.h>

namespace host {

/// Reads what the output needs of a chart document: fills in the source variables
/// and returns the chart's name, empty when it has none. The text is read in
/// place, nothing outside it is. Throws ChartException with line and column.
std::string readChart(const std::string& xml, ZephVisualization& chart);

} // namespace host
