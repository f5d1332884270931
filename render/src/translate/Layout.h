#pragma once

#include <vector>

#include "resolve/Chart.h"

namespace render {

/// Where the panels of a plot stand, in pixels.
struct Layout {
  double width; ///< of the plot
  double height;
  double panelWidth;
  double panelHeight;
  std::vector<double> left; ///< of each column of panels
  std::vector<double> top;  ///< of each row

  /// With the room between panels that the facets ask for, and panels of the shape that
  /// the document asks for.
  static Layout of(const Chart& chart, Notes& notes);
};

/// Makes a unit as long on one dimension as on the other where the document wants it:
/// the dimension with the longer unit gets a longer range, about its middle.
void makeUnitsEqual(Chart& chart, const Layout& layout, Notes& notes);

} // namespace render
