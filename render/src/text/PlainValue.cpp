#include "text/PlainValue.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include <fmt/format.h>
#include <host/Calendar.h>
#include <unicode/gregocal.h>
#include <unicode/unistr.h>

namespace render {
namespace {

const char* skeletonOf(double resolution) {
  if (resolution > 92 * host::secondsPerDay) return "y";
  if (resolution > 7 * host::secondsPerDay) return "yMMMM";
  return resolution >= host::secondsPerDay ? "yMMMMd" : "yMMMMdHm";
}

std::unique_ptr<icu::DateFormat> dateFormatOf(const DateFormat& format,
                                              const std::string& language) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Locale locale(language.c_str());
  std::unique_ptr<icu::DateFormat> dates(icu::DateFormat::createInstanceForSkeleton(
      icu::UnicodeString(skeletonOf(format.resolution())), locale, status));
  if (U_FAILURE(status) != 0) return nullptr;
  // Gregorian both ways, as the values count.
  auto calendar =
      std::make_unique<icu::GregorianCalendar>(*icu::TimeZone::getGMT(), locale, status);
  calendar->setGregorianChange(-1e17, status);
  dates->adoptCalendar(calendar.release());
  return dates;
}

/// Hours, minutes and seconds.
std::string durationText(double seconds) {
  const auto whole = static_cast<std::int64_t>(std::round(std::abs(seconds)));
  return fmt::format("{}{}:{:02}:{:02}", seconds < 0 ? "-" : "", whole / 3600, whole / 60 % 60,
                     whole % 60);
}

void group(std::string& digits, const std::string& sign) {
  const std::size_t point = std::min(digits.find('.'), digits.size());
  const std::size_t first = digits.starts_with('-') ? 2 : 1;
  for (std::size_t at = point; at >= first + 3; at -= 3)
    digits.insert(at - 3, sign);
}

} // namespace

std::string roundedText(double value, const NumberSigns& signs) {
  constexpr double longest = 1e15;
  constexpr int significant = 4;
  constexpr int mostDecimals = 6;
  const double magnitude = std::abs(value);
  if (magnitude >= longest || (magnitude > 0 && magnitude < 1e-4))
    return fmt::format("{:.{}g}", value, significant);
  const int integerDigits = magnitude < 1 ? 0 : static_cast<int>(std::log10(magnitude)) + 1;
  const int decimals = std::clamp(significant - integerDigits, 0, mostDecimals);
  std::string digits = fmt::format("{:.{}f}", value, decimals);
  if (decimals > 0) digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.ends_with('.')) digits.pop_back();
  if (digits == "-0") return "0";
  const std::size_t point = digits.find('.');
  if (point == digits.npos) {
    group(digits, signs.grouping);
    return digits;
  }
  std::string integer = digits.substr(0, point);
  group(integer, signs.grouping);
  return integer + signs.decimal + digits.substr(point + 1);
}

PlainValue::PlainValue(const Format& format, const Manifest& manifest)
    : format_(format), manifest_(manifest) {
  if (const auto* date = std::get_if<DateFormat>(&format); date != nullptr && !date->isDuration())
    dates_ = dateFormatOf(*date, manifest.language);
}

std::string PlainValue::operator()(double value) const {
  constexpr double mostMilliseconds = 8.64e15;
  constexpr double unixStart = 12'219'379'200; // in seconds of the calendar
  const double milliseconds = (value - unixStart) * 1000;
  if (dates_ && std::abs(milliseconds) <= mostMilliseconds) {
    icu::UnicodeString text;
    std::string utf8;
    return dates_->format(milliseconds, text).toUTF8String(utf8);
  }
  if (!dates_ && std::holds_alternative<DateFormat>(format_) && std::abs(value) <= mostMilliseconds)
    return durationText(value);
  std::string text = roundedText(value, manifest_.signs);
  const auto* number = std::get_if<NumberFormat>(&format_);
  if (number == nullptr) return text;
  text.insert(text.starts_with('-') ? 1 : 0, number->prefix);
  return text + number->suffix;
}

} // namespace render
