#pragma once

#include <unicode/umachine.h>

namespace render {

/// Whether the fonts that pictures are drawn with have the character, or need not, as it
/// is blank or invisible.
bool isDrawable(UChar32 character);

} // namespace render
