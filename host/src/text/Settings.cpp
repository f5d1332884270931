#include <host/Settings.h>

#include <utility>

#include <fmt/format.h>

#include <host/ErrorLog.h>

namespace {

bool bootstrapping = false;

std::array<customCurrency, 5>& currencies() {
  static std::array<customCurrency, 5> theCurrencies;
  return theCurrencies;
}

// The record of a currency; a number that names none is reported and null.
customCurrency* findCurrency(int number) {
  if (number >= 0 && number < static_cast<int>(currencies().size()))
    return &currencies()[static_cast<std::size_t>(number)];
  host::reportError(fmt::format("custom currency {} out of range (0-4)", number));
  return nullptr;
}

} // namespace

CmnSys& CmnSys::shared() {
  static CmnSys settings;
  return settings;
}

std::optional<CmnLoc>& CmnLoc::shared() {
  static std::optional<CmnLoc> settings;
  return settings;
}

const customCurrency& currencyFormat::GetCCX(int number) {
  static const customCurrency none;
  const customCurrency* currency = findCurrency(number);
  return currency ? *currency : none;
}

void currencyFormat::SetCCX(int number, customCurrency currency) {
  if (customCurrency* record = findCurrency(number)) *record = std::move(currency);
}

int qbootstrapping_() { return bootstrapping ? 1 : 0; }

void host::setBootstrapping(bool on) { bootstrapping = on; }
