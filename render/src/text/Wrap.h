#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace render {

/// How wide a text is drawn, in pixels.
double textWidth(std::string_view utf8, double fontSize, bool bold = false);

struct WrapLimits {
  int width = 0; ///< in pixels
  double fontSize = 0;
  std::size_t lines = 0;
  bool bold = false;
};

/// Breaks a text into lines no wider than the limit, at line feeds and where the
/// language allows it; a word wider than a line is broken anywhere between
/// characters. The last line ends in an ellipsis when there is more. An empty
/// text has no lines.
std::vector<std::string> wrap(std::string_view utf8, const WrapLimits& limits);

/// Whether wrapping breaks no word and leaves nothing out.
bool wrapsWhole(std::string_view utf8, const WrapLimits& limits);

} // namespace render
