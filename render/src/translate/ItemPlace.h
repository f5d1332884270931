#pragma once

#include <vector>

#include "translate/Translator.h"

/// Where the items of an element stand in the panel that is drawn, as Vega's scales place them.
namespace render {

/// In pixels from the panel's upper left corner.
struct Spot {
  double x;
  double y;
};

/// One for each of `drawnItems`.
std::vector<Spot> spotsOf(const Element& element, const Context& context);

/// Where a value of a continuous dimension stands in the panel, as the role lies.
double placeOf(double value, std::string_view role, const Context& context);

/// What tells apart the lines that join an element's items.
std::vector<double> groupOf(const Element& element, const Item& item);

} // namespace render
