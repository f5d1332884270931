#pragma once

#include "translate/Translator.h"

/// What the marks of all elements share.
namespace render {

/// The rows that an element draws, as a data set named by the element's id.
Json elementData(const Element& element);

/// The position of a datum of the element.
Json positions(const Element& element);

/// The color of the element's group, or the first color when it has none.
Json color(const Element& element);

/// An expression for the tooltip: a pair of the variable's title and the text of
/// its value. Adds the scale that labels categories.
std::string tooltipEntry(const Variable& variable, Parts& parts);

/// Whether what reaches over the edge of the plot is cut off.
bool isClipped(const Chart& chart);

} // namespace render
