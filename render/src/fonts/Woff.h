#pragma once

#include <string>
#include <string_view>

namespace render {

/// A font in the WOFF container, each of its tables compressed. `font` is a sound
/// TrueType or OpenType font; the same one gives the same bytes.
std::string woff(std::string_view font);

} // namespace render
