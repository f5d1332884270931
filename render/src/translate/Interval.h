#pragma once

#include "translate/Translator.h"

/// What bars, error bars and boxes share.
namespace render {

/// The width of a bar: from one end of its range to the other, or in the middle of its
/// category, of whose room bars fill a `share`.
void addBarWidth(Json& update, const Element& element, double share, const Context& context);

/// A line from low to high.
Json thinMark(const Element& element, Context& context);

/// The stroke across the end of such a line: at "low" or "high".
Json capMark(const Element& element, const char* end, Context& context);

} // namespace render
