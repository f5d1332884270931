#pragma once

#include "translate/Translator.h"

namespace render {

/// The lines of a legend's title.
std::vector<std::string> legendTitle(const std::string& title);

/// Remembers that a legend names an element without groups, a function or a line across the
/// plot; an element without a name is called what it measures.
void addNamed(const Node& node, const Node& legend, Context& context);

/// Adds the legends of all that is named, one for each title; function lines that have a
/// name are among them, whether a legend names them or not.
void addNamedLegends(const Chart& chart, Parts& parts);

} // namespace render
