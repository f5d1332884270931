#include "fonts/FontCss.h"

#include <algorithm>
#include <filesystem>
#include <ranges>
#include <set>

#include <fmt/format.h>
#include <nettle/base64.h>

#include "fonts/Face.h"
#include "fonts/FontFiles.h"
#include "fonts/Letters.h"
#include "fonts/Woff.h"
#include "text/Advances.h"
#include "text/Coverage.h"

namespace render {
namespace {

/// A font in one weight, with the characters that are taken from it.
struct Source {
  std::string family, file;
  Face face;
  std::set<UChar32> characters{};
  bool isMissed = false;

  bool has(const std::u32string& letter) const {
    return std::ranges::all_of(letter,
                               [this](char32_t c) { return face.has(static_cast<UChar32>(c)); });
  }
};

using Sources = std::vector<Source>;

/// A letter comes from the font whose widths it is measured by, or else from the next one
/// that has it whole, marks included. When the file of the first is missing, none takes its
/// place: the letters of another are wider or narrower.
void take(const std::u32string& letter, Sources& sources) {
  const auto base = static_cast<UChar32>(letter.front());
  const auto measured = std::ranges::find(sources, measuredFamily(base), &Source::family);
  const bool isMeasured = measured != sources.end();
  const auto first = isMeasured ? measured : sources.begin() + 1;
  const auto last = isMeasured && !measured->face.isThere() ? first + 1 : sources.end();
  const auto found =
      std::find_if(first, last, [&letter](const Source& source) { return source.has(letter); });
  if (found != last) return found->characters.insert(letter.begin(), letter.end());
  if (isDrawable(base))
    for (Source& source : std::ranges::subrange(first, last))
      source.isMissed = source.isMissed || !source.face.isThere();
}

/// "U+20-7E,U+2212"
std::string rangesOf(const std::set<UChar32>& characters) {
  std::string ranges;
  for (auto next = characters.begin(); next != characters.end();) {
    const UChar32 first = *next;
    UChar32 last = first;
    while (++next != characters.end() && *next == last + 1)
      last = *next;
    ranges += fmt::format("{}U+{:X}", ranges.empty() ? "" : ",", first);
    if (last != first) ranges += fmt::format("-{:X}", last);
  }
  return ranges;
}

std::string base64(std::string_view bytes) {
  std::string text(BASE64_ENCODE_RAW_LENGTH(bytes.size()), '\0');
  base64_encode_raw(text.data(), bytes.size(), reinterpret_cast<const std::uint8_t*>(bytes.data()));
  return text;
}

/// Of rules for the same character browsers take the last.
void addRules(Sources& sources, std::string_view weight, FontCss& fonts) {
  for (Source& source : sources | std::views::reverse) {
    if (source.characters.empty()) continue;
    const std::string subset = source.face.subset(source.characters);
    source.isMissed = source.isMissed || subset.empty();
    if (subset.empty()) continue;
    fonts.css += fmt::format("@font-face{{font-family:'{}';font-weight:{};src:url(data:font/woff;"
                             "base64,{});unicode-range:{}}}\n",
                             sources.front().family, weight, base64(woff(subset)),
                             rangesOf(source.characters));
  }
  for (const Source& source : sources)
    if (source.isMissed) fonts.missing.push_back(source.file);
}

} // namespace

FontCss fontCss(const Json& spec, std::string_view families) {
  FontCss fonts;
  const LettersByWeight letters = lettersOf(spec);
  const std::vector<FontFiles> files = fontFiles();
  const auto add = [&](const char* weight, const Letters& ofWeight, auto file) {
    Sources sources;
    for (const FontFiles& font : files)
      sources.push_back({font.family, (font.*file).filename(), Face(font.*file, families)});
    for (const std::u32string& letter : ofWeight)
      take(letter, sources);
    addRules(sources, weight, fonts);
  };
  add("normal", letters.regular, &FontFiles::regular);
  add("bold", letters.bold, &FontFiles::bold);
  return fonts;
}

} // namespace render
