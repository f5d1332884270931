#pragma once

#include <cstdint>
#include <functional>
#include <optional>
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

/// How the lines of a control chart differ from those of the data.
struct LineLook {
  const char* stroke; ///< an expression
  bool isDashed;
};

/// The look that the name of its style gives a line; absent for most.
std::optional<LineLook> lineLookOf(const Node& element);

/// That of an area: what a band between two values is about shows through it, other bands,
/// lines, the grid.
double areaOpacity(const Element& element);

/// Whether the points of an element are the censored cases of survival curves, which are
/// marked on the line instead of hiding it.
bool isCensored(const Node& element);

/// Whether the style of an element asks for hollow symbols.
bool isHollow(const Node& element, const Chart& chart);

} // namespace render
