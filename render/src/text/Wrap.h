#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace render {

/// About how wide a text is drawn, in pixels: the common sans-serif faces differ
/// by a tenth, this stays on the wide side.
double textWidth(std::string_view utf8, double fontSize);

struct WrapLimits {
  int width; ///< in pixels
  double fontSize;
  std::size_t lines;
};

/// Breaks a text into lines no wider than the limit, at line feeds and where the
/// language allows it; a word wider than a line is broken anywhere between
/// characters. The last line ends in an ellipsis when there is more. An empty
/// text has no lines.
std::vector<std::string> wrap(std::string_view utf8, const WrapLimits& limits);

} // namespace render
