#pragma once

#include <array>
#include <string>
#include <string_view>

#include "read/ChartFolder.h"
#include "text/Json.h"

/// How every chart looks: sizes in pixels, colors, symbols, fonts.
namespace render::theme {

constexpr int plotWidth = 720;
constexpr int plotHeight = 480;
constexpr int textWidth = plotWidth + 60; ///< titles and footnotes are wrapped to it
constexpr int legendWidth = 170;
constexpr int legendOffset = 24; ///< from the plot
constexpr std::size_t legendEntries = 40;

constexpr int titleSize = 20;
constexpr int subtitleSize = 15;
constexpr int axisTitleSize = 15;
constexpr int labelSize = 13;
constexpr int footnoteSize = 13;

constexpr int pointSize = 56;        ///< the area of a symbol
constexpr double fillOpacity = 0.55; ///< of points, so that overlapping ones show
constexpr double lineWidth = 2.25;
constexpr double thinWidth = 1.5; ///< of whiskers, error bars and outlines
constexpr double barOpacity = 0.85;
constexpr double areaOpacity = 0.7;
constexpr int smallestSize = 20; ///< of symbols that a variable sizes
constexpr int largestSize = 450;

constexpr double barBand = 0.8;    ///< the part of a category's room that its bars fill
constexpr double boxBand = 0.5;    ///< the same of one box, which needs less
constexpr double slotShare = 0.92; ///< the part of its slot that a bar fills
constexpr int capLength = 12;      ///< of the end of an error bar

/// An expression for the colors of a range of values, from low to high.
constexpr const char* ramp =
    "dark ? ['#26455e','#4f9fd6','#e6f3fb'] : ['#d6e8f5','#4a9bd1','#08306b']";

/// A symbol as a path within the unit square around the origin, and how far it
/// reaches from there to the right.
struct Symbol {
  std::string_view path;
  double reach;
};
constexpr std::array<Symbol, 7> symbols{{
    {"M1,0A1,1,0,1,1,-1,0A1,1,0,1,1,1,0Z", 1},
    {"M-1.15,0.8L0,-1.2L1.15,0.8Z", 0.58},
    {"M-0.9,-0.9H0.9V0.9H-0.9Z", 0.9},
    {"M-1.25,0L0,-1.25L1.25,0L0,1.25Z", 1.25},
    {"M-1.2,-0.4H-0.4V-1.2H0.4V-0.4H1.2V0.4H0.4V1.2H-0.4V0.4H-1.2Z", 1.2},
    {"M-1.15,-0.8L0,1.2L1.15,-0.8Z", 0.58},
    {"M-0.8,-1.15L1.2,0L-0.8,1.15Z", 1.2},
}};

/// A line alone, as a legend shows it.
constexpr std::string_view lineSymbol = "M-2.6,0H2.6";

/// A piece of a bar or an area, as a legend shows it.
constexpr std::string_view barSymbol = "M-1,-1H1V1H-1Z";

/// The symbol with a line of that length through it, as a legend shows points on a line.
std::string symbolOnLine(const Symbol& symbol);

/// Dash patterns in the order used; the first is solid.
Json dashes();

/// The dash pattern of the function line of that index; never solid, which is how
/// elements are drawn.
Json functionDash(std::size_t index);

/// The dash pattern of lines across the plot.
Json referenceDash();

/// The signals for light and dark: "dark" is set from outside; "ink", "paper",
/// "faint" and "palette", the colors of groups, follow.
Json signals();

/// The faces that letters come from, for a chart in the manifest's language.
std::string font(const Manifest& manifest);

/// Vega's configuration. The manifest's language chooses the names of months and days
/// and the faces of Chinese, Japanese and Korean characters.
Json config(const Manifest& manifest);

} // namespace render::theme
