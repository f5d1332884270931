#include <host/Formatter.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>

#include <fmt/format.h>
#include <unicode/ustring.h>

#include <host/Missing.h>
#include <host/Settings.h>

#include "Converter.h"
#include "Reports.h"

namespace {

enum class Kind : std::uint8_t { unknown, text, number, dateTime };

// Of every display-format code, what its values are.
constexpr auto kinds = [] {
  std::array<Kind, 87> table{};
  const auto set = [&table](Kind kind, std::initializer_list<std::size_t> codes) {
    for (const std::size_t code : codes)
      table[code] = kind;
  };
  set(Kind::text, {1});
  set(Kind::number, {3,  4,  5,  6,  7,  8,  9,  11, 15, 16, //
                     17, 25, 31, 32, 33, 34, 35, 36, 37, 40});
  set(Kind::dateTime, {20, 21, 22, 23, 24, 26, 27, 28, 29, 30, 38, 39, 85, 86});
  return table;
}();

Kind kindOf(int code) {
  const auto place = static_cast<std::size_t>(code);
  return place < kinds.size() ? kinds[place] : Kind::unknown;
}

// The number formats that are not written plainly.
enum Code : int {
  dollar = 4,
  general = 5,
  scientific = 17,
  percent = 31,
  currencyA = 33,
  currencyE = 37
};

struct Affixes {
  std::string before, after;
};

Affixes currencyAffixes(const customCurrency& currency, bool negative) {
  Affixes affixes{currency.getPrefix(), currency.getSuffix()};
  if (!negative) return affixes;
  const std::string& before = currency.getNegativePrefix();
  const std::string& after = currency.getNegativeSuffix();
  const bool showsNoSign = before.empty() && after.empty();
  affixes.before.insert(0, showsNoSign ? "-" : before);
  affixes.after += after;
  return affixes;
}

Affixes affixesOf(int code, bool negative) {
  const char* sign = negative ? "-" : "";
  if (code == dollar) return {fmt::format("{}$", sign), ""};
  if (code == percent) return {sign, "%"};
  if (code >= currencyA && code <= currencyE)
    return currencyAffixes(currencyFormat::GetCCX(code - currencyA), negative);
  return {sign, ""};
}

void group(std::string& digits, std::size_t integerDigits, std::string_view separator) {
  if (separator.empty()) return;
  for (std::size_t place = integerDigits; place > 3;)
    digits.insert(place -= 3, separator);
}

// At least `least` digits before the point; none for 0 when there are decimals.
void fillInteger(std::string& digits, int least) {
  const std::size_t integerDigits = std::min(digits.find('.'), digits.size());
  const auto wanted = static_cast<std::size_t>(std::clamp(least, 0, 40));
  if (wanted > integerDigits) digits.insert(0, wanted - integerDigits, '0');
  if (wanted == 0 && digits.starts_with("0.")) digits.erase(0, 1);
}

std::string magnitude(double value, int code, int decimals, std::string_view separator) {
  if (code == scientific) return fmt::format("{:.{}E}", value, decimals);
  std::string digits = fmt::format("{:.{}f}", value, decimals);
  if (code == general || code == percent)
    fillInteger(digits, CmnSys::shared().minimumIntegerDigits);
  group(digits, std::min(digits.find('.'), digits.size()), separator);
  return digits;
}

std::string trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

// Fields are counted in characters, texts are bytes of the process code page.
int characters(std::string_view text) {
  const bool isAscii =
      std::ranges::all_of(text, [](char c) { return static_cast<signed char>(c) >= 0; });
  if (isAscii) return static_cast<int>(text.size());
  const std::u16string units = host::processConverter().decode(text);
  return u_countChar32(units.data(), static_cast<std::int32_t>(units.size()));
}

bool fits(std::string_view text, int width) { return width <= 0 || characters(text) <= width; }

// With as many digits as the field takes; asterisks when it takes none.
std::string inScientific(double value, int code, int width) {
  constexpr int mostDecimals = 15;
  constexpr int leastBesideDecimals = 6; // "1." and "E+05"
  const Affixes affixes = affixesOf(code, value < 0);
  const int room = width - characters(affixes.before) - characters(affixes.after);
  for (int decimals = std::clamp(room - leastBesideDecimals, 0, mostDecimals); decimals >= 0;
       --decimals) {
    const std::string digits = fmt::format("{:.{}E}", std::abs(value), decimals);
    if (static_cast<int>(digits.size()) <= room)
      return trimmed(affixes.before + digits + affixes.after);
  }
  return std::string(static_cast<std::size_t>(width), '*');
}

std::string numberText(double value, int code, int width, int decimals,
                       std::string_view separator) {
  if (value == host::systemMissing) return {};
  if (!std::isfinite(value)) {
    const std::string_view infinity = value < 0 ? "-Inf" : "Inf";
    const std::string_view name = std::isnan(value) ? "NaN" : infinity;
    return fits(name, width) ? std::string(name)
                             : std::string(static_cast<std::size_t>(width), '*');
  }
  constexpr int mostDecimals = 16;
  const std::string digits =
      magnitude(std::abs(value), code, std::clamp(decimals, 0, mostDecimals), separator);
  // What shows as zero shows no sign.
  const bool negative = value < 0 && digits.find_first_of("123456789") != std::string::npos;
  const Affixes affixes = affixesOf(code, negative);
  std::string text = trimmed(affixes.before + digits + affixes.after);
  return fits(text, width) ? text : inScientific(value, code, width);
}

// A plain number in the place of a text that cannot be made yet.
std::string insteadOf(int code, double value, int decimals) {
  const char* why = kindOf(code) == Kind::dateTime ? "is not built yet" : "is not known";
  host::reportOnce(fmt::format("display format {} {}: the plain number is shown", code, why));
  return numberText(value, 0, 0, decimals, {});
}

std::string cellText(const OBS& firstCell, int width) {
  const std::string_view text(firstCell.bytes, static_cast<std::size_t>(std::max(width, 0)));
  return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

} // namespace

namespace formatter {

std::string formattedValue(const OBS& value, int type, int width, int decimals,
                           std::string_view separator) {
  switch (kindOf(type)) {
  case Kind::text:
    return cellText(value, width);
  case Kind::number:
    return numberText(value.number, type, width, decimals, separator);
  default:
    return insteadOf(type, value.number, decimals);
  }
}

std::string formattedValue(double value, const KORVA_Format& format) {
  if (kindOf(format.TypeEx()) == Kind::text) return {}; // a number holds no text cells
  return formattedValue(OBS{.number = value}, format.TypeEx(), format.Width(), format.Decimals());
}

std::string AsString(double value, const KORVA_Format& format) {
  const Kind kind = kindOf(format.TypeEx());
  if (kind != Kind::number && kind != Kind::dateTime) return {};
  return formattedValue(value, format);
}

} // namespace formatter
