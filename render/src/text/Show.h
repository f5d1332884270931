#pragma once

#include <string>
#include <string_view>

namespace render {

/// A text of the document as a note shows it: shortened when it is long, line
/// feeds and other control characters as blanks.
std::string shown(std::string_view utf8);

} // namespace render
