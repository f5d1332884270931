#pragma once

#include <string_view>

#include <unicode/umachine.h>

namespace render {

/// How far a character moves the pen, in units of the font size: that of the faces
/// in which pictures are drawn, and about that of others.
double advance(UChar32 character, bool bold);

/// The font family whose width a character has; empty when its width is about that of
/// others.
std::string_view measuredFamily(UChar32 character);

} // namespace render
