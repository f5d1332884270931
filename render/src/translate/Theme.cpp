#include "translate/Theme.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>
#include <host/Locale.h>

namespace render::theme {
namespace {

/// Letters come from faces of one width, whatever the language. What these do not have
/// comes from the next that does; the characters that Chinese, Japanese and Korean
/// share look different in each, so that the language's own faces have to come first.
struct EastAsianFaces {
  std::string_view language;
  std::string_view families;
};
constexpr EastAsianFaces eastAsianFaces[] = {
    {"ko", "'Noto Sans CJK KR', 'Noto Sans KR', 'Apple SD Gothic Neo', 'Malgun Gothic'"},
    {"zh-cn", "'Noto Sans CJK SC', 'Noto Sans SC', 'PingFang SC', 'Microsoft YaHei'"},
    {"zh-tw", "'Noto Sans CJK TC', 'Noto Sans TC', 'PingFang TC', 'Microsoft JhengHei'"},
    {"ja", "'Noto Sans CJK JP', 'Noto Sans JP', 'Hiragino Sans', 'Yu Gothic', Meiryo"},
};

/// The Japanese faces have the characters of the others too.
std::string fontOf(std::string_view language) {
  const auto* faces = std::ranges::find(eastAsianFaces, language, &EastAsianFaces::language);
  if (faces == std::end(eastAsianFaces)) --faces;
  return fmt::format("'Liberation Sans', Arial, Helvetica, 'Noto Sans', {}, 'DejaVu Sans', "
                     "sans-serif",
                     faces->families);
}

const Json ink{{"signal", "ink"}};

/// A hyphen for minus, as in the texts of the chart.
Json numberLocale(const NumberSigns& signs) {
  return {{"decimal", signs.decimal},
          {"thousands", signs.grouping},
          {"grouping", Json::array({3})},
          {"currency", {"", ""}},
          {"minus", "-"}};
}

/// Only the names are used.
Json timeLocale(std::string_view language) {
  const host::DateNames& names = host::dateNames(language);
  return {{"dateTime", "%c"},       {"date", "%x"},
          {"time", "%X"},           {"periods", {"AM", "PM"}},
          {"days", names.days},     {"shortDays", names.shortDays},
          {"months", names.months}, {"shortMonths", names.shortMonths}};
}

Json axes(const std::string& font) {
  return {{"domainColor", ink},
          {"tickColor", ink},
          {"gridColor", {{"signal", "faint"}}},
          {"labelColor", ink},
          {"labelFont", font},
          {"labelFontSize", labelSize},
          {"labelOverlap", true},
          {"labelPadding", 5},
          {"titleColor", ink},
          {"titleFont", font},
          {"titleFontSize", axisTitleSize},
          {"titleFontWeight", "normal"},
          {"titlePadding", 12}};
}

Json legends(const std::string& font) {
  return {{"labelColor", ink},
          {"labelFont", font},
          {"labelFontSize", labelSize},
          {"labelLimit", 0},
          {"labelOffset", 12},
          {"offset", legendOffset},
          {"padding", 0},
          {"rowPadding", 7},
          {"symbolLimit", legendEntries},
          {"symbolOffset", 6}, // room for the lines that reach out of symbols
          {"symbolSize", pointSize},
          {"symbolStrokeWidth", 1.75},
          {"titleColor", ink},
          {"titleFont", font},
          {"titleFontSize", labelSize + 1},
          {"titleFontWeight", "bold"},
          {"titleLimit", 0},
          {"titlePadding", 9}};
}

Json titles(const std::string& font) {
  return {{"anchor", "start"},
          {"frame", "bounds"},
          {"color", ink},
          {"font", font},
          {"fontSize", titleSize},
          {"fontWeight", "bold"},
          {"limit", 0},
          {"lineHeight", titleSize + 5},
          {"offset", 18},
          {"subtitleColor", ink},
          {"subtitleFont", font},
          {"subtitleFontSize", subtitleSize},
          {"subtitleLineHeight", subtitleSize + 5},
          {"subtitlePadding", 6}};
}

} // namespace

std::string symbolOnLine(const Symbol& symbol) {
  constexpr double lineReach = 2.6; // that of lineSymbol
  return fmt::format("M{0},0H{1}M{2},0H{3}{4}", -lineReach, -symbol.reach, symbol.reach, lineReach,
                     symbol.path);
}

Json dashes() { return {Json::array(), Json{8, 4}, Json{2, 3}, Json{9, 3, 2, 3}, Json{14, 4}}; }

Json functionDash(std::size_t index) {
  const Json patterns = dashes();
  return patterns[1 + index % (patterns.size() - 1)];
}

Json referenceDash(std::size_t index) {
  const std::array<Json, referenceDashes> patterns{Json{6, 3}, Json{1.5, 3}, Json{10, 3, 1.5, 3},
                                                   Json{14, 4}, Json{6, 3, 1.5, 3, 1.5, 3}};
  return patterns[index % patterns.size()];
}

Json signals(const Theme& theme) {
  const auto tone = [&theme](std::string_view Tones::* each) {
    return fmt::format("dark ? {} : {}", theme.dark.*each, theme.light.*each);
  };
  return {{{"name", "dark"}, {"value", theme.startsDark}},
          {{"name", "ink"}, {"update", tone(&Tones::ink)}},
          {{"name", "paper"}, {"update", tone(&Tones::paper)}},
          {{"name", "faint"}, {"update", tone(&Tones::faint)}},
          {{"name", "palette"}, {"update", tone(&Tones::palette)}}};
}

std::string ramp(const Theme& theme) {
  return fmt::format("dark ? {} : {}", theme.dark.ramp, theme.light.ramp);
}

std::string font(const Manifest& manifest) { return fontOf(manifest.language); }

Json config(const Manifest& manifest, const Theme& theme) {
  const std::string font = fontOf(manifest.language);
  Json json{{"locale",
             {{"number", numberLocale(manifest.signs)}, {"time", timeLocale(manifest.language)}}},
            {"axis", axes(font)},
            {"legend", legends(font)},
            {"title", titles(font)}};
  json["axis"]["labelSeparation"] = theme.labelGap;
  return json;
}

} // namespace render::theme
