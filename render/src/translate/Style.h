#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "resolve/Chart.h"

namespace render {

/// Calls `take` with the name and value of each property of a style's value,
/// "fill-pattern:0;fill:transparent".
void forEachProperty(std::string_view value,
                     const std::function<void(std::string_view, std::string_view)>& take);

/// What an element of bars or lines looks like, beside what it measures.
enum class Look : std::uint8_t { usual, thin, capped, hidden };

/// The look that the name of an element's style asks for: an error bar, for one, is an
/// interval like others.
Look lookOf(const Node& element);

/// How a line goes from point to point: "linear", or the steps that the name of its style
/// asks for.
std::string_view interpolationOf(const Node& element);

/// Whether the style of an element asks for hollow symbols.
bool isHollow(const Node& element, const Chart& chart);

} // namespace render
