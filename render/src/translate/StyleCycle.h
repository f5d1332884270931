#pragma once

#include "translate/Translator.h"

/// How elements look that have neither groups nor colors of their own: each takes the next
/// of the style cycle.
namespace render {

/// Whether an element is drawn in a color of the cycle; error bars, whiskers and a curve
/// over bars are drawn in ink.
bool hasOwnColor(const Element& element);

/// Whether marks with a filling may lie under those of an element.
bool isOverFillings(const Element& element, const Chart& chart);

/// An expression for the color of such an element. Elements of one group, and marks that
/// show the same values in two ways, such as points on their line, share one.
std::string ownColor(const Element& element, const Chart& chart);

/// Which of the symbols its points have.
std::size_t ownShape(const Element& element, const Chart& chart);

/// The dash pattern of its line; the first line is solid.
Json lineDash(const Element& element, const Chart& chart);

} // namespace render
