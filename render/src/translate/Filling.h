#pragma once

#include <string>

#include "translate/Translator.h"

/// What bars, areas, boxes and pieces are filled with: the color of their group, its pattern,
/// or the pattern in the color; in a theme without colors always its pattern.
namespace render {

/// Whether that is a pattern, or may be one: of an element, of a group.
bool isPatterned(const Element& element, const Chart& chart);
bool isPatterned(const Variable& group, const Chart& chart);

/// Whether the patterns of a group are in its colors.
bool isInColors(const Variable& group, const Chart& chart);

/// The patterns of a chart, for what draws it.
Json patternsOf(const Chart& chart);

/// Adds the scale that it needs.
Json filling(const Element& element, Context& context);

/// Patterns need an outline, or they run into one another.
void addOutline(Json& update, const Element& element, Context& context);

/// Adds the scale of a group's fillings, unless it is there; its name.
std::string addFillScale(const Variable& group, Context& context);

} // namespace render
