#pragma once

#include <string>
#include <vector>

#include "translate/ItemPlace.h"
#include "translate/Translator.h"

/// Plots of three dimensions: what is drawn lies in a box that is seen in perspective.
namespace render {

/// The labels of a dimension along an edge of the box.
void addSpatialAxis(const Node& dimension, Context& context);

/// Adds to the transforms of an element's data where each row stands in the picture,
/// "across" and "down"; the rows in front come last, so that they cover the others.
void addProjection(Json& transforms, const Element& element, const Context& context);

/// The position of such a row.
Json spatialPositions();

/// Where the items of an element stand in the picture; one for each of `drawnItems`.
std::vector<Spot> spotsInSpace(const Element& element, const Context& context);

/// An axis's own label, else the titles of the variables drawn along it.
std::string axisTitle(const Node& axis, const Dimension& dimension);

} // namespace render
