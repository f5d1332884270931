#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "fonts/FontCss.h"
#include "read/ChartFolder.h"
#include "text/Words.h"
#include "translate/Translator.h"

namespace render {

/// The page of one chart: the picture drawn by the shared script beside it with the
/// letters of `fonts`, its text alternative, the notes and the data.
std::string chartPage(const Manifest& manifest, const Json& spec, const FontCss& fonts,
                      const Words& words);

/// The page of a chart that cannot be drawn.
std::string refusedPage(const Manifest& manifest, std::string_view reason);

} // namespace render
