#pragma once

#include "resolve/Chart.h"

namespace render {

/// Reads how a dimension turns values into lengths, from the "scale" of its node.
void readScale(Dimension& dimension, const Node* node, Notes& notes);

/// A scale of logarithms that is safe is one as long as all values are above zero, as
/// `low` tells. Otherwise it goes on through zero, evenly about it.
void chooseLogarithm(double low, Dimension& dimension);

/// Whether the scale has a place for a value.
bool takes(double value, const Dimension& dimension);

/// Whether a bar begins where the scale does, since the scale has no place for its lower end.
bool beginsWithScale(const Element& element, const Item& item, const Dimension& place);

/// A value on an even scale, and back.
double scaled(double value, const Dimension& dimension);
double unscaled(double length, const Dimension& dimension);

} // namespace render
