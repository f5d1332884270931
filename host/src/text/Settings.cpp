#include <host/Settings.h>

#include <optional>

#include <fmt/format.h>
#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf16.h>

#include <host/ErrorLog.h>
#include <host/Locale.h>
#include <host/Text.h>

#include "Languages.h"

namespace {

bool bootstrapping = false;

// Never destroyed: reports and texts are made at exit too.
std::array<customCurrency, 5>& currencies() {
  static auto& theCurrencies = *new std::array<customCurrency, 5>;
  return theCurrencies;
}

// The record of a currency; a number that names none is reported and null.
customCurrency* findCurrency(std::int64_t number) {
  if (number >= 0 && number < static_cast<std::int64_t>(currencies().size()))
    return &currencies()[static_cast<std::size_t>(number)];
  host::reportError(fmt::format("custom currency {} out of range (0-4)", number));
  return nullptr;
}

struct LocaleSettings {
  bool absent = false;
  std::optional<CmnLoc> own;
  host::OfOutputLanguage<CmnLoc> ofLanguage;
};

LocaleSettings& localeSettings() {
  static auto& settings = *new LocaleSettings;
  return settings;
}

CmnLoc signsOf(const std::string& language) {
  const host::NumberSymbols& symbols = host::numberSymbols(language);
  return {symbols.decimal, symbols.grouping};
}

bool isSign(std::string_view utf8) {
  const std::u16string units = host::utf16(utf8);
  const auto length = static_cast<std::int32_t>(units.size());
  if (u_countChar32(units.data(), length) != 1) return false;
  UChar32 character = 0;
  U16_GET(units.data(), 0, 0, length, character);
  return u_isprint(character) && !u_isdigit(character) && character != 0xFFFD;
}

} // namespace

CmnSys& CmnSys::shared() {
  static CmnSys settings;
  return settings;
}

const CmnLoc* CmnLoc::shared() {
  LocaleSettings& settings = localeSettings();
  if (settings.absent) return nullptr;
  return settings.own ? &*settings.own : &settings.ofLanguage.get(signsOf);
}

bool CmnLoc::set(CmnLoc own) {
  const bool groups = !own.groupingSeparator.empty();
  if (!isSign(own.decimalSeparator) || (groups && !isSign(own.groupingSeparator)) ||
      own.decimalSeparator == own.groupingSeparator)
    return false;
  localeSettings().absent = false;
  localeSettings().own = std::move(own);
  return true;
}

void CmnLoc::remove() { localeSettings().absent = true; }

void CmnLoc::followLanguage() {
  localeSettings().absent = false;
  localeSettings().own.reset();
}

const customCurrency& currencyFormat::GetCCX(std::int64_t number) {
  static const auto& none = *new customCurrency;
  const customCurrency* currency = findCurrency(number);
  return currency ? *currency : none;
}

bool currencyFormat::SetCCX(std::int64_t number, customCurrency currency) {
  customCurrency* record = findCurrency(number);
  if (record) *record = std::move(currency);
  return record != nullptr;
}

int qbootstrapping_() { return bootstrapping ? 1 : 0; }

void host::setBootstrapping(bool on) { bootstrapping = on; }
