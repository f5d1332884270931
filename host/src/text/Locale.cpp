#include <host/Locale.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>

#include <unicode/dcfmtsym.h>
#include <unicode/dtfmtsym.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include "Languages.h"

namespace host {
namespace {

icu::Locale localeOf(std::string_view language) {
  const Language* known = findLanguage(language);
  if (!known || known->table == englishTable) return icu::Locale::getEnglish();
  return icu::Locale::createCanonical(std::string(known->table).c_str());
}

std::string utf8(const icu::UnicodeString& text) {
  std::string bytes;
  return text.toUTF8String(bytes);
}

using Width = icu::DateFormatSymbols::DtWidthType;
constexpr auto standAlone = icu::DateFormatSymbols::STANDALONE;

void copyNames(std::span<const icu::UnicodeString> texts, std::span<std::string> names) {
  std::ranges::transform(texts.first(std::min(texts.size(), names.size())), names.begin(), utf8);
}

void copyMonths(const icu::DateFormatSymbols& symbols, Width width, std::span<std::string> names) {
  std::int32_t count = 0;
  const icu::UnicodeString* months = symbols.getMonths(count, standAlone, width);
  copyNames({months, static_cast<std::size_t>(count)}, names);
}

// ICU has a nameless day before Sunday.
void copyDays(const icu::DateFormatSymbols& symbols, Width width, std::span<std::string> names) {
  std::int32_t count = 0;
  const icu::UnicodeString* days = symbols.getWeekdays(count, standAlone, width);
  copyNames(std::span(days, static_cast<std::size_t>(count)).subspan(1), names);
}

DateNames makeDateNames(std::string_view language) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::DateFormatSymbols symbols(localeOf(language), status);
  DateNames names;
  if (U_FAILURE(status)) return names;
  copyMonths(symbols, icu::DateFormatSymbols::WIDE, names.months);
  copyMonths(symbols, icu::DateFormatSymbols::ABBREVIATED, names.shortMonths);
  copyDays(symbols, icu::DateFormatSymbols::WIDE, names.days);
  copyDays(symbols, icu::DateFormatSymbols::ABBREVIATED, names.shortDays);
  return names;
}

// Few code pages and fonts hold the narrow no-break space.
NumberSymbols makeNumberSymbols(std::string_view language) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::DecimalFormatSymbols symbols(localeOf(language), status);
  if (U_FAILURE(status)) return {".", ","};
  icu::UnicodeString grouping =
      symbols.getConstSymbol(icu::DecimalFormatSymbols::kGroupingSeparatorSymbol);
  grouping.findAndReplace(u"\u202F", u"\u00A0");
  return {utf8(symbols.getConstSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol)),
          utf8(grouping)};
}

/// What `make` says of a language, made once. Never destroyed, for texts that are
/// made at exit.
template <class Made>
const Made& cached(std::string_view language, Made (*make)(std::string_view)) {
  static auto& known = *new std::map<std::string, Made, std::less<>>;
  const std::string_view code = findLanguage(language) ? language : "en";
  const auto found = known.find(code);
  if (found != known.end()) return found->second;
  return known.emplace(code, make(code)).first->second;
}

} // namespace

const DateNames& dateNames(std::string_view language) { return cached(language, makeDateNames); }

const NumberSymbols& numberSymbols(std::string_view language) {
  return cached(language, makeNumberSymbols);
}

} // namespace host
