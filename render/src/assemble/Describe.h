#pragma once

#include <string>

#include "text/Words.h"
#include "translate/Translator.h"

namespace render {

/// What the picture shows, for those who cannot see it, in the chart's language: its
/// title and description, its kind, the variables and their ranges, groups, the trend
/// and outliers. It is computed from all rows; numbers are rounded.
std::string describe(const Chart& chart, const Parts& parts, const Words& words);

} // namespace render
