// Texts with characters that the pictures' fonts do not have.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <unicode/unistr.h>

#include "check/Check.h"
#include "check/UsedVariables.h"
#include "text/Coverage.h"
#include "text/Show.h"

namespace render {
namespace {

/// Attributes that are written in the picture.
constexpr std::array<std::string_view, 3> writtenAttributes{"name", "prefix", "suffix"};

/// "U+1F600, U+1F601": each once, and not more than anybody reads.
std::string missingIn(std::string_view text) {
  constexpr std::size_t most = 8;
  std::string missing;
  std::vector<UChar32> told;
  const auto all = icu::UnicodeString::fromUTF8(text);
  for (std::int32_t at = 0; at < all.length(); at = all.moveIndex32(at, 1)) {
    const UChar32 c = all.char32At(at);
    if (isDrawable(c) || std::ranges::find(told, c) != told.end()) continue;
    told.push_back(c);
    if (told.size() <= most) missing += fmt::format("{}U+{:04X}", missing.empty() ? "" : ", ", c);
  }
  return told.size() <= most ? missing : fmt::format("{} and {} more", missing, told.size() - most);
}

template <class Place> void checkText(const Place& place, std::string_view text, Report& report) {
  const std::string missing = missingIn(text);
  if (missing.empty()) return;
  report.add(place, fmt::format("no font of the pictures has {} of \"{}\"; write it with other "
                                "characters",
                                missing, shown(text)));
}

void checkBelow(const Node& node, Report& report) {
  for (const Node& child : node.children) {
    if (child.kind == "label") checkText(child, child.text, report);
    for (const std::string_view name : writtenAttributes)
      checkText(child, child.attribute(name), report);
    checkBelow(child, report);
  }
}

} // namespace

void checkGlyphs(const Chart& chart, Report& report) {
  checkBelow(chart.folder->document.graph(), report);
  for (const Variable* variable : usedVariables(chart)) {
    checkText(*variable, variable->title, report);
    for (const Category& category : variable->categories)
      checkText(*variable, category.label, report);
  }
}

} // namespace render
