#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "translate/Translator.h"

/// What marks tell of themselves, in tooltips and to those who walk through the picture with
/// arrow keys: pairs of a title and a text, as expressions. The page leaves out those
/// without a text.
namespace render {

/// The pair of a title and of an expression for its text.
std::string entry(std::string_view title, std::string_view text);

/// The pair of a variable and its value in the row.
std::string rowEntry(const Variable& variable, Context& context);

/// The text of a value along a role, which is an expression: in the format of the variable,
/// or without one in that of the dimension. There may be no variable.
std::string valueAlong(std::string_view role, const Variable* variable, std::string_view value,
                       const Context& context);

/// "1 to 2" in the chart's language, of two expressions for texts.
std::string rangeText(std::string_view from, std::string_view to, const Words& words);

/// The title of the axis along a role; empty without one.
std::string titleAlong(std::string_view role, const Context& context);

/// What tells the marks of an element from others: panel, name and groups.
std::vector<std::string> seriesEntries(const Element& element, Context& context);

/// These and, where it is a category, the place of the element's items.
std::vector<std::string> placeEntries(const Element& element, Context& context);

/// What the element measures: its name where its variable has none of its own.
std::string measureTitle(const Element& element, const Context& context);

/// The list of them, as the channel of a mark.
Json tooltipOf(const std::vector<std::string>& entries);

/// The tooltip of the element's rows or items: series, place and values.
Json tooltip(const Element& element, Context& context);

/// What a mark that joins many of them is as a whole, for the same channel.
Json seriesTooltip(const Element& element, Context& context);
/// The same in one text.
Json seriesDescription(const Element& element, Context& context);

/// The way that one goes along a role: "right", "down" or "up".
const char* walkAlong(std::string_view role, const Context& context);

/// How the page walks through the marks of an element: along which way, and by which fields
/// one series is told from another.
Json walkOf(const Element& element, const Context& context);

} // namespace render
