#pragma once

#include "translate/Translator.h"

/// Where there is room for the labels of bars and of pieces of a pie.
namespace render {

constexpr double labelFontSize = 12;
constexpr double labelLineHeight = 15;
constexpr double sliceShare = 0.68; ///< of the radius, where labels within a piece stand

struct LabelSize {
  double width;
  double height;
};

/// About as large as the label of a row of the element's data is drawn.
LabelSize labelSize(const Element& element, const Json& row, const Context& context);

struct LabelPlaces {
  std::size_t inside = 0;
  std::size_t none = 0;
};

/// Marks each row of the data that was added last with its "label": "inside" where the mark
/// is to hold it and is large enough; "none" in a stack that has no room for it, which is
/// noted; else it stands beyond the end of the mark.
LabelPlaces placeLabels(const Element& element, Context& context);

/// How many radians a unit of a pie takes.
double turnsOf(const Element& element, const Context& context);

} // namespace render
