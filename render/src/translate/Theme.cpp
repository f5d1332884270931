#include "translate/Theme.h"

#include <fmt/format.h>
#include <host/Text.h>
#include <unicode/dcfmtsym.h>

namespace render::theme {
namespace {

/// Faces of one width first. The free one leads, because a renderer without a
/// browser may try the first name only.
constexpr const char* font =
    "'Liberation Sans', Arial, Helvetica, 'Noto Sans', 'DejaVu Sans', sans-serif";

/// Colors that people with any color vision tell apart; the order gives the first
/// few the most contrast.
constexpr const char* palette =
    "dark ? ['#56a8e8','#f0883e','#3fc59a','#d98cc4','#9ad0f5','#e8b04a','#a8a8a8','#c9c24a']"
    " : ['#0072b2','#d55e00','#009e73','#b5569a','#3fa2df','#c58400','#7a7a7a','#8c8400']";

const Json ink{{"signal", "ink"}};

Json numberLocale(const std::string& language) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::DecimalFormatSymbols symbols(icu::Locale(language.c_str()), status);
  const auto text = [&](icu::DecimalFormatSymbols::ENumberFormatSymbol symbol) {
    std::string utf8;
    return symbols.getSymbol(symbol).toUTF8String(utf8);
  };
  return {{"decimal", text(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol)},
          {"thousands", text(icu::DecimalFormatSymbols::kGroupingSeparatorSymbol)},
          {"grouping", Json::array({3})},
          {"currency", {"", ""}}};
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

Json signals() {
  return {{{"name", "dark"}, {"value", false}},
          {{"name", "ink"}, {"update", "dark ? '#e6e6e6' : '#222222'"}},
          {{"name", "paper"}, {"update", "dark ? '#16181b' : '#ffffff'"}},
          {{"name", "faint"}, {"update", "dark ? '#34373b' : '#e4e4e4'"}},
          {{"name", "palette"}, {"update", palette}}};
}

Json config(const std::string& language) {
  return {{"locale", {{"number", numberLocale(language)}}},
          {"axis",
           {{"domainColor", ink},
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
            {"titlePadding", 12}}},
          {"legend",
           {{"labelColor", ink},
            {"labelFont", font},
            {"labelFontSize", labelSize},
            {"labelLimit", 0},
            {"labelOffset", 12},
            {"offset", 24},
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
            {"titlePadding", 9}}},
          {"title",
           {{"anchor", "start"},
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
            {"subtitlePadding", 6}}}};
}

} // namespace render::theme
