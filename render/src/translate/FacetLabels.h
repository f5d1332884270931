#pragma once

#include "translate/Translator.h"

namespace render {

/// Writes what the panels are for: above the columns and to the right of the rows, or
/// below the axis that panels share. Those of a matrix are told by the titles of axes.
void addFacetLabels(Context& context);

/// The "facetLabel" of a level, counted from 1 with the columns first, or null.
const Node* facetLabel(std::size_t level, const Chart& chart);

/// How much room the labels of rows of panels take beside them.
int rowLabelRoom(const Chart& chart);

/// How far below the panels the labels of an axis reach, where facets are labelled
/// under it.
double axisRoom(const Context& context);

/// Whether the axis of a role only repeats what the colors of its bars say.
bool isRedundant(const Dimension& dimension, const Chart& chart);

/// The title that the document gives the facets of a level, counted from 1, else the
/// title of the variable.
std::string facetTitle(const FacetValue& value, std::size_t level, const Chart& chart);

} // namespace render
