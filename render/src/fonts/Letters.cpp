#include "fonts/Letters.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace render {
namespace {

/// What only readers of the page and of the file meet.
constexpr std::array<std::string_view, 2> notInPicture{"description", "usermeta"};

/// Vega's minus sign, and what it ends a text with that it cuts.
constexpr std::u32string_view ofVega = U"\u2212\u2026";

bool isPlain(std::string_view text) {
  return text.find("\\u") == text.npos &&
         std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Texts in expressions are ASCII, with escapes for all else.
icu::UnicodeString unescaped(const icu::UnicodeString& text) {
  icu::UnicodeString plain;
  for (std::int32_t at = 0; at < text.length();) {
    std::int32_t after = at + 1;
    const bool isEscape = text[at] == u'\\' && after < text.length() && text[after] == u'u';
    const UChar32 escaped = isEscape ? text.unescapeAt(after) : U_SENTINEL;
    at = escaped == U_SENTINEL ? at + 1 : after;
    plain.append(escaped == U_SENTINEL ? text[at - 1] : escaped);
  }
  return plain;
}

bool isMark(UChar32 c) { return (U_GET_GC_MASK(c) & (U_GC_M_MASK | U_GC_CF_MASK)) != 0; }

void addLetters(const icu::UnicodeString& text, Letters& letters) {
  std::u32string letter;
  for (std::int32_t at = 0; at < text.length(); at = text.moveIndex32(at, 1)) {
    const UChar32 c = text.char32At(at);
    if (!letter.empty() && !isMark(c)) letters.insert(std::exchange(letter, {}));
    if (!u_iscntrl(c) || !letter.empty()) letter += static_cast<char32_t>(c);
  }
  if (!letter.empty()) letters.insert(std::move(letter));
}

/// Whatever draws a text may put a letter and its mark together.
void addText(std::string_view utf8, Letters& letters) {
  const auto text = unescaped(icu::UnicodeString::fromUTF8(utf8));
  addLetters(text, letters);
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* composed = icu::Normalizer2::getNFCInstance(status);
  if (U_SUCCESS(status) && !composed->isNormalized(text, status))
    addLetters(composed->normalize(text, status), letters);
}

void addTexts(const Json& json, bool withPlain, Letters& letters) {
  if (json.is_string()) {
    const auto& text = json.get_ref<const std::string&>();
    if (withPlain || !isPlain(text)) addText(text, letters);
  } else if (json.is_object()) {
    for (const auto& [key, value] : json.get_ref<const Json::object_t&>())
      addTexts(value, withPlain, letters);
  } else if (json.is_array()) {
    for (const Json& value : json)
      addTexts(value, withPlain, letters);
  }
}

/// Titles are bold unless they say otherwise; subtitles are not. That of a legend is a text
/// alone.
void addTitle(const Json& title, Letters& bold) {
  if (!title.is_object()) return addTexts(title, true, bold);
  if (title.value("fontWeight", "bold") != "normal")
    addTexts(title.value("text", title), true, bold);
}

/// Of the marks and of the legends in it; axes have titles that are not bold.
void addTitles(const Json& json, Letters& bold) {
  if (json.is_array())
    for (const Json& value : json)
      addTitles(value, bold);
  if (!json.is_object()) return;
  if (json.contains("title")) addTitle(json["title"], bold);
  for (const char* inside : {"marks", "legends"})
    if (json.contains(inside)) addTitles(json[inside], bold);
}

} // namespace

LettersByWeight lettersOf(const Json& spec) {
  LettersByWeight letters;
  for (char32_t c = U' '; c <= U'~'; ++c)
    letters.regular.insert({c});
  for (const char32_t c : ofVega)
    letters.regular.insert({c});
  for (const auto& [key, value] : spec.get_ref<const Json::object_t&>())
    if (std::ranges::find(notInPicture, key) == notInPicture.end())
      addTexts(value, false, letters.regular);
  addTitles(spec, letters.bold);
  return letters;
}

} // namespace render
