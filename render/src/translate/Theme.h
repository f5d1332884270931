#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "read/ChartFolder.h"
#include "text/Json.h"

namespace render {
struct Chart;
}

/// How every chart looks: sizes in pixels, colors, symbols, fonts. What the chart's
/// template changes of it is a theme, a row of the table in Themes.cpp.
namespace render::theme {

constexpr int plotWidth = 720; ///< of the usual plot
constexpr int plotHeight = 480;
constexpr int textMargin = 60; ///< by which titles and footnotes may be wider than the plot
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
constexpr double thinWidth = 1.5;  ///< of whiskers, error bars and outlines
constexpr double outlineWidth = 1; ///< of what patterns fill
constexpr int haloWidth = 4;       ///< of the paper around letters, on both sides
constexpr int swatchSize = 260;    ///< the area of a pattern in a legend
constexpr double barOpacity = 0.85;
constexpr double areaOpacity = 0.7;
constexpr double bandOpacity = 0.22; ///< of areas between two values
constexpr int smallestSize = 20;     ///< of symbols that a variable sizes
constexpr int largestSize = 450;

constexpr double barBand = 0.8;    ///< the part of a category's room that its bars fill
constexpr double boxBand = 0.5;    ///< the same of one box, which needs less
constexpr double slotShare = 0.92; ///< the part of its slot that a bar fills
constexpr int capLength = 12;      ///< of the end of an error bar

/// The colors of light or of dark, as Vega's expressions write them.
struct Tones {
  std::string_view ink;
  std::string_view paper;
  std::string_view faint;
  std::string_view palette; ///< of groups, in their order
  std::string_view ramp;    ///< of a range of values, from low to high
};

/// A filling that is told apart without color: a tile of lines or dots.
struct Pattern {
  std::string_view name;
  int size;              ///< of the tile
  std::string_view path; ///< what is drawn on it
  double width;          ///< of its lines; 0 fills the path
};

struct Theme {
  std::string_view name; ///< that of the template
  const Tones& light;
  const Tones& dark;
  bool startsDark = false;
  bool followsReader = true; ///< in a page: the reader's choice of light or dark
  int plotWidth = theme::plotWidth;
  int plotHeight = theme::plotHeight;
  int labelGap = 3;         ///< the least between labels of an axis
  double magnification = 1; ///< of the whole picture: a small plot so has large type and few ticks
  bool hasPatterns = false; ///< in place of colors
};

/// The names of the themes, the usual one first.
std::span<const Theme> themes();

/// The theme of that name, or null.
const Theme* find(std::string_view name);

/// That of the chart's template; the usual one without a template, or one that is not known.
const Theme& of(const Chart& chart);

/// Fill bars and areas of groups in this order, where patterns do; a name that is no
/// pattern's is a color.
std::span<const std::string_view> patternFillings();

/// The patterns among them, for what draws pictures.
Json patterns();

/// What the page and the drawing of pictures need to know of the chart's theme; empty for the
/// usual one without patterns.
Json meta(const Theme& theme, Json patterns);

/// An expression for the colors of a range of values, from low to high.
std::string ramp(const Theme& theme);

/// A filling of the theme as Vega takes it: a color, or a reference to a pattern.
std::string filling(std::string_view name);

/// Patterns in the colors of groups: each cycle goes on by itself, so that color and pattern
/// together tell more groups apart than either. Of light and of dark, as a page may turn.
constexpr std::size_t coloredFillings = 56;
std::string coloredFilling(const Theme& theme, std::size_t group, bool isDark);

/// The patterns that these are, of so many groups.
Json coloredPatterns(const Theme& theme, std::size_t groups);

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

/// A mark on a line.
constexpr std::string_view crossSymbol = "M-1,0H1M0,-1V1";

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

/// The dash pattern of lines across the plot that have a style of that index, from 0.
constexpr std::size_t referenceDashes = 5;
Json referenceDash(std::size_t index);

/// The signals for light and dark: "dark" is set from outside; "ink", "paper",
/// "faint" and "palette", the colors of groups, follow.
Json signals(const Theme& theme);

/// The faces that letters come from, for a chart in the manifest's language.
std::string font(const Manifest& manifest);

/// Vega's configuration. The manifest's language chooses the names of months and days
/// and the faces of Chinese, Japanese and Korean characters.
Json config(const Manifest& manifest, const Theme& theme);

} // namespace render::theme
