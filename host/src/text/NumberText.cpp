#include "NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include <unicode/ustring.h>

#include <host/Missing.h>
#include <host/Settings.h>

#include "Converter.h"

namespace host {
namespace {

// The number formats that are not written plainly.
enum Code : int { dollar = 4, general = 5, percent = 31, currencyA = 33, currencyE = 37 };

/// What stands around the digits, from the outside in on either side.
struct Affixes {
  std::string_view sign, before;
  std::string_view after = {}, closing = {};
};

Affixes currencyAffixes(const customCurrency& currency, bool negative) {
  Affixes affixes{{}, currency.getPrefix(), currency.getSuffix()};
  if (!negative) return affixes;
  affixes.sign = currency.getNegativePrefix();
  affixes.closing = currency.getNegativeSuffix();
  const bool showsNoSign = affixes.sign.empty() && affixes.closing.empty();
  if (showsNoSign) affixes.sign = "-";
  return affixes;
}

Affixes affixesOf(int code, bool negative) {
  const std::string_view sign = negative ? "-" : "";
  if (code == dollar) return {sign, "$"};
  if (code == percent) return {sign, "", "%"};
  if (code >= currencyA && code <= currencyE)
    return currencyAffixes(currencyFormat::GetCCX(code - currencyA), negative);
  return {sign, ""};
}

/// The digits of a number, machine-written: '.' before the decimals.
class Digits {
public:
  Digits(double magnitude, std::chars_format form, int decimals) {
    const auto written =
        std::to_chars(text_.data(), text_.data() + text_.size(), magnitude, form, decimals);
    size_ = static_cast<std::size_t>(written.ptr - text_.data());
    const bool isScientific = form == std::chars_format::scientific;
    if (isScientific) *std::find(text_.data(), text_.data() + size_, 'e') = 'E';
    const auto fraction = static_cast<std::size_t>(decimals);
    if (fraction == 0)
      point_ = size_;
    else
      point_ = isScientific ? 1 : size_ - fraction - 1;
  }

  std::size_t size() const { return size_; }
  std::string_view integer() const { return view().substr(0, point_); }
  /// What follows the decimal point; empty without one.
  std::string_view fraction() const { return view().substr(std::min(point_ + 1, size_)); }
  bool isZero() const {
    return std::ranges::none_of(view(), [](char c) { return c >= '1' && c <= '9'; });
  }

private:
  std::string_view view() const { return {text_.data(), size_}; }

  // The largest number, its point and all decimals.
  std::array<char, 309 + 1 + 16> text_;
  std::size_t size_ = 0;
  std::size_t point_ = 0;
};

void appendGrouped(std::string& text, std::string_view digits, std::string_view separator) {
  constexpr std::size_t groupSize = 3;
  std::size_t end = (digits.size() - 1) % groupSize + 1;
  text += digits.substr(0, end);
  for (; end < digits.size(); end += groupSize)
    text.append(separator).append(digits.substr(end, groupSize));
}

void appendInteger(std::string& text, const Digits& digits, int least, std::string_view separator) {
  const std::string_view integer = digits.integer();
  if (least <= 0 && integer == "0" && !digits.fraction().empty()) return;
  const auto wanted = static_cast<std::size_t>(std::clamp(least, 1, CmnSys::mostIntegerDigits));
  if (separator.empty() && wanted <= integer.size()) {
    text += integer;
    return;
  }
  std::string filled(std::max(wanted, integer.size()) - integer.size(), '0');
  filled += integer;
  if (separator.empty())
    text += filled;
  else
    appendGrouped(text, filled, separator);
}

void appendFraction(std::string& text, std::string_view fraction) {
  if (fraction.empty()) return;
  const CmnLoc* locale = CmnLoc::shared();
  if (locale)
    text += processText(locale->decimalSeparator);
  else
    text += '.';
  text += fraction;
}

void trim(std::string& text) {
  if (!text.starts_with(' ') && !text.ends_with(' ')) return;
  text.erase(text.find_last_not_of(' ') + 1);
  text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
}

std::string assembled(const Affixes& affixes, const Digits& digits, int leastInteger,
                      std::string_view separator) {
  std::string text(affixes.sign);
  text += affixes.before;
  appendInteger(text, digits, leastInteger, separator);
  appendFraction(text, digits.fraction());
  text.append(affixes.after).append(affixes.closing);
  trim(text);
  return text;
}

// Fields are counted in characters, texts are bytes of the process code page.
int characters(std::string_view text) {
  const bool isAscii =
      std::ranges::all_of(text, [](char c) { return static_cast<signed char>(c) >= 0; });
  if (isAscii) return static_cast<int>(text.size());
  const std::u16string units = processConverter().decode(text);
  return u_countChar32(units.data(), static_cast<std::int32_t>(units.size()));
}

bool fits(std::string_view text, int width) {
  return width <= 0 || text.size() <= static_cast<std::size_t>(width) || characters(text) <= width;
}

std::string asterisks(int width) { return std::string(static_cast<std::size_t>(width), '*'); }

// With as many digits as the field takes; asterisks when it takes none.
std::string inScientific(double value, int code, int width) {
  constexpr int mostDecimals = 15;
  constexpr int leastBesideDecimals = 6; // "1." and "E+05"
  const Affixes affixes = affixesOf(code, value < 0);
  int room = width;
  for (const std::string_view affix :
       {affixes.sign, affixes.before, affixes.after, affixes.closing})
    room -= characters(affix);
  for (int decimals = std::clamp(room - leastBesideDecimals, 0, mostDecimals); decimals >= 0;
       --decimals) {
    const Digits digits(std::abs(value), std::chars_format::scientific, decimals);
    if (static_cast<int>(digits.size()) <= room) return assembled(affixes, digits, 1, {});
  }
  return asterisks(width);
}

std::string nameOfNotFinite(double value, int width) {
  const std::string_view infinity = value < 0 ? "-Inf" : "Inf";
  const std::string_view name = std::isnan(value) ? "NaN" : infinity;
  return fits(name, width) ? std::string(name) : asterisks(width);
}

} // namespace

std::string numberText(double value, int code, int width, int decimals,
                       std::string_view separator) {
  if (value == systemMissing) return {};
  if (!std::isfinite(value)) return nameOfNotFinite(value, width);

  constexpr int mostDecimals = 16;
  const bool isScientific = code == scientificFormat;
  const Digits digits(std::abs(value),
                      isScientific ? std::chars_format::scientific : std::chars_format::fixed,
                      std::clamp(decimals, 0, mostDecimals));
  const bool followsSystem = code == general || code == percent;
  const int leastInteger = followsSystem ? CmnSys::shared().minimumIntegerDigits : 1;
  // What shows as zero shows no sign.
  const Affixes affixes = affixesOf(code, value < 0 && !digits.isZero());
  std::string text =
      assembled(affixes, digits, leastInteger, isScientific ? std::string_view() : separator);
  return fits(text, width) ? text : inScientific(value, code, width);
}

} // namespace host
