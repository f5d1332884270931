#pragma once

#include <unicode/umachine.h>

namespace render {

/// How far a character moves the pen, in units of the font size: that of the faces
/// in which pictures are drawn, and about that of others.
double advance(UChar32 character, bool bold);

} // namespace render
