#pragma once

#include "translate/Translator.h"

/// What the panels of a matrix have that others have not.
namespace render {

/// The style of an element or of grid lines on the diagonal of a matrix, where a variable
/// meets itself; null in other panels, and where the node says nothing of it.
const Node* panelStyle(const Node& node, const Context& context);

/// Whether ticks have grid lines in the panel that is drawn.
bool hasGrid(const Node& ticks, const Context& context);

/// Whether a style, by its id, asks for nothing: the panels that it is for are then not
/// drawn otherwise but named.
bool isEmptyStyle(const Node& facetStyle, const Chart& chart);

/// Writes the title of a variable in the middle of the panel, which is shaded where the
/// document styles cells.
void addVariableName(const Variable& variable, Context& context);

} // namespace render
