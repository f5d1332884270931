#pragma once

#include "translate/Translator.h"

/// What the panels of a matrix have that others have not.
namespace render {

/// The style of an element on the diagonal of a matrix, where a variable meets itself; null
/// in other panels, and where the element says nothing of it.
const Node* panelStyle(const Element& element, const Context& context);

/// Whether a style, by its id, asks for nothing: the panels that it is for are then not
/// drawn otherwise but named.
bool isEmptyStyle(const Node& facetStyle, const Chart& chart);

/// Writes the title of a variable in the middle of the panel.
void addVariableName(const Variable& variable, Context& context);

/// The area of symbols: panels are small, and symbols with them.
int matrixPointSize(const Context& context);

} // namespace render
