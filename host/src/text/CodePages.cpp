#include <host/CodePages.h>

#include <algorithm>
#include <vector>

#include <unicode/ubrk.h>
#include <unicode/utf16.h>

#include <host/Text.h>

#include "Converter.h"

namespace {

struct ProcessPage {
  std::string name = "UTF-8";
  std::unique_ptr<host::Converter> converter = host::Converter::open("UTF-8");
};

// Never destroyed: reports that are made at exit are transcoded too.
ProcessPage& processPage() {
  static ProcessPage& page = *new ProcessPage;
  return page;
}

// Where the character that holds `unit` begins, combined characters taken whole.
std::int32_t characterStart(std::u16string_view text, std::int32_t unit) {
  // ICU looks for what precedes a second half before the first half.
  U16_SET_CP_START(text.data(), 0, unit);
  UErrorCode status = U_ZERO_ERROR;
  static const icu::LocalUBreakIteratorPointer characters(
      ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &status));
  ubrk_setText(characters.getAlias(), text.data(), static_cast<std::int32_t>(text.size()), &status);
  if (ubrk_isBoundary(characters.getAlias(), unit)) return unit;
  return ubrk_preceding(characters.getAlias(), unit);
}

} // namespace

const char* KORVAMBDefaultCodePage() { return processPage().name.c_str(); }

std::string KORVAMBTranscodeGeneric(std::u16string_view text) {
  return processPage().converter->encode(text);
}

std::string KORVAMBStringTruncate_A(std::string_view text, int maxLength) {
  if (maxLength <= 0) return {};
  const auto limit = static_cast<std::size_t>(maxLength);
  if (text.size() <= limit) return std::string(text);

  // Whether a character ends at the limit shows in the one that follows.
  constexpr std::size_t longestCharacter = 16;
  std::vector<std::int32_t> places;
  const std::u16string units =
      processPage().converter->decode(text.substr(0, limit + longestCharacter), places);
  const auto beyond = std::upper_bound(places.begin(), places.end(), maxLength);
  if (beyond == places.begin()) return {};
  const auto last = static_cast<std::int32_t>(beyond - places.begin() - 1);
  const auto cut = places[static_cast<std::size_t>(characterStart(units, last))];
  return std::string(text.substr(0, static_cast<std::size_t>(cut)));
}

namespace host {

bool setProcessCodePage(std::string_view name) {
  auto converter = Converter::open(name);
  if (!converter) return false;
  processPage() = {converter->isUtf8() ? "UTF-8" : std::string(name), std::move(converter)};
  return true;
}

const Converter& processConverter() { return *processPage().converter; }

std::string processText(std::string utf8) {
  const Converter& page = processConverter();
  if (page.isUtf8()) return utf8;
  return page.encode(utf16(utf8));
}

} // namespace host
