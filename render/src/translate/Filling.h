#pragma once

#include <string>

#include "translate/Translator.h"

/// What bars, areas, boxes and pieces are filled with: the color of their group or, in a
/// theme without colors, its pattern.
namespace render {

/// Whether that is a pattern, or may be one: of an element, of a group, of any of the chart.
bool isPatterned(const Element& element, const Chart& chart);
bool isPatterned(const Variable& group, const Chart& chart);
bool hasPatterns(const Chart& chart);

/// Adds the scale that it needs.
Json filling(const Element& element, Context& context);

/// Patterns need an outline, or they run into one another.
void addOutline(Json& update, const Element& element, const Context& context);

/// Adds the scale of a group's fillings, unless it is there; its name.
std::string addFillScale(const Variable& group, Context& context);

} // namespace render
