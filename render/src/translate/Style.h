#pragma once

#include <functional>
#include <string_view>

#include "resolve/Chart.h"

namespace render {

/// Calls `take` with the name and value of each property of a style's value,
/// "fill-pattern:0;fill:transparent".
void forEachProperty(std::string_view value,
                     const std::function<void(std::string_view, std::string_view)>& take);

/// Whether the style of an element asks for hollow symbols.
bool isHollow(const Node& element, const Chart& chart);

} // namespace render
