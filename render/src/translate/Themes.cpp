#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "resolve/Chart.h"
#include "translate/Theme.h"

namespace render::theme {
namespace {

// Colors that people with any color vision tell apart; the order gives the first few the
// most contrast.
constexpr Tones light{
    .ink = "'#222222'",
    .paper = "'#ffffff'",
    .faint = "'#e4e4e4'",
    .palette = "['#0072b2','#d55e00','#009e73','#b5569a','#3fa2df','#c58400','#7a7a7a','#8c8400']",
    .ramp = "['#d6e8f5','#4a9bd1','#08306b']",
};
constexpr Tones dark{
    .ink = "'#e6e6e6'",
    .paper = "'#16181b'",
    .faint = "'#34373b'",
    .palette = "['#56a8e8','#f0883e','#3fc59a','#d98cc4','#9ad0f5','#e8b04a','#a8a8a8','#c9c24a']",
    .ramp = "['#26455e','#4f9fd6','#e6f3fb']",
};
/// Neighbours differ by as much gray as leaves each of them dark enough for a thin line.
constexpr Tones grays{
    .ink = "'#000000'",
    .paper = "'#ffffff'",
    .faint = "'#dddddd'",
    .palette = "['#000000','#7f7f7f','#404040','#8f8f8f','#5c5c5c','#262626','#6e6e6e','#4d4d4d']",
    .ramp = "['#ebebeb','#8c8c8c','#000000']",
};

constexpr std::array patternTable{
    Pattern{"rising", 8, "M-2,2L2,-2M0,8L8,0M6,10L10,6", 1.4},
    Pattern{"dots", 6, "M3,3m-1.2,0a1.2,1.2,0,1,0,2.4,0a1.2,1.2,0,1,0,-2.4,0Z", 0},
    Pattern{"crossed", 8, "M0,0L8,8M8,0L0,8", 1},
    Pattern{"level", 6, "M0,3H6", 1.4},
    Pattern{"upright", 6, "M3,0V6", 1.4},
    Pattern{"falling", 8, "M-2,6L2,10M0,0L8,8M6,-2L10,2", 1.4},
};
/// What lies side by side or on each other differs in how dark it is, not only in form.
constexpr std::array<std::string_view, 8> grayFillings{"#cfcfcf", "rising",  "#595959", "dots",
                                                       "crossed", "upright", "level",   "falling"};

constexpr std::array table{
    Theme{.name = "default", .light = light, .dark = dark},
    Theme{.name = "print",
          .light = grays,
          .dark = grays,
          .followsReader = false,
          .hasPatterns = true},
    Theme{.name = "dark", .light = light, .dark = dark, .startsDark = true, .followsReader = false},
    Theme{.name = "presentation",
          .light = light,
          .dark = dark,
          .plotWidth = 520,
          .plotHeight = 300,
          .labelGap = 6,
          .magnification = 1.75},
};

const Pattern* patternOf(std::string_view name) {
  const auto* found = std::ranges::find(patternTable, name, &Pattern::name);
  return found == patternTable.end() ? nullptr : found;
}

/// Beside colors; the first group has its color alone.
constexpr std::array<std::string_view, 7> coloredNames{"",      "rising",  "dots",   "crossed",
                                                       "level", "falling", "upright"};

/// The same in every picture of the theme, so that pictures may stand in one page.
std::string idOf(const Pattern& pattern) { return fmt::format("chartxml-{}", pattern.name); }

/// A list of Vega's expressions is one of JSON but for its quotes.
Json colorsOf(std::string_view expression) {
  std::string text(expression);
  std::ranges::replace(text, '\'', '"');
  return Json::parse(text);
}

Json describe(const Pattern& pattern, std::string id) {
  return {{"id", std::move(id)},
          {"size", pattern.size},
          {"path", pattern.path},
          {"width", pattern.width}};
}

/// A pattern in the color of a group.
struct ColoredPattern {
  const Pattern* pattern; ///< null where the color stands alone
  std::string color;
  std::string paper;

  std::string id() const { return fmt::format("{}-{}", idOf(*pattern), color.substr(1)); }
};

ColoredPattern coloredPattern(const Theme& theme, std::size_t group, bool isDark) {
  const Tones& tones = isDark ? theme.dark : theme.light;
  const Json colors = colorsOf(tones.palette);
  return {.pattern = patternOf(coloredNames[group % coloredNames.size()]),
          .color = colors[group % colors.size()],
          .paper = colorsOf(tones.paper)};
}

} // namespace

std::span<const Theme> themes() { return table; }

const Theme* find(std::string_view name) {
  const auto* found = std::ranges::find(table, name, &Theme::name);
  return found == table.end() ? nullptr : found;
}

const Theme& of(const Chart& chart) {
  const Theme* named = find(chart.folder->manifest.chartTemplate);
  return named != nullptr ? *named : table.front();
}

std::string filling(std::string_view name) {
  const Pattern* pattern = patternOf(name);
  return pattern == nullptr ? std::string(name) : fmt::format("url(#{})", idOf(*pattern));
}

std::span<const std::string_view> patternFillings() { return grayFillings; }

std::string coloredFilling(const Theme& theme, std::size_t group, bool isDark) {
  const ColoredPattern colored = coloredPattern(theme, group, isDark);
  return colored.pattern == nullptr ? colored.color : fmt::format("url(#{})", colored.id());
}

Json coloredPatterns(const Theme& theme, std::size_t groups) {
  Json all = Json::array();
  for (std::size_t group = 0; group < groups; ++group)
    for (const bool isDark : {false, true}) {
      const ColoredPattern colored = coloredPattern(theme, group, isDark);
      if (colored.pattern == nullptr) continue;
      all.push_back(describe(*colored.pattern, colored.id()));
      all.back()["color"] = colored.color;
      all.back()["paper"] = colored.paper;
    }
  return all;
}

Json patterns() {
  Json all = Json::array();
  for (const std::string_view name : patternFillings())
    if (const Pattern* pattern = patternOf(name); pattern != nullptr)
      all.push_back(describe(*pattern, idOf(*pattern)));
  return all;
}

Json meta(const Theme& theme, Json patterns) {
  if (&theme == table.data() && patterns.empty()) return Json::object();
  Json json{{"name", theme.name}, {"followsReader", theme.followsReader}};
  if (theme.magnification != 1) json["magnification"] = theme.magnification;
  if (!patterns.empty()) json["patterns"] = std::move(patterns);
  return json;
}

} // namespace render::theme
