#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/Json.h"

namespace render {

/// The letters of a picture, to be held by what shows it.
struct FontCss {
  std::string css;                    ///< @font-face rules that hold the letters as data
  std::vector<std::string> missing{}; ///< the font files that lack, by name
};

/// The letters of a Vega chart, of the fonts that bitmaps are drawn with, as the first of
/// `families`: each character in the font that it has in bitmaps, whatever else the reader
/// has. What a missing file has is left to the other families. The same chart and fonts
/// give the same bytes.
FontCss fontCss(const Json& spec, std::string_view families);

} // namespace render
