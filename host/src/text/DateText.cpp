#include "DateText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

#include <host/Calendar.h>
#include <host/ChartTranscoder.h>
#include <host/Locale.h>
#include <host/Settings.h>
#include <host/StringTables.h>
#include <host/Text.h>

#include "Converter.h"
#include "Languages.h"

// Texts are put together in UTF-8.
namespace host {
namespace {

void appendNumber(std::string& text, std::int64_t number, std::size_t filledTo) {
  std::array<char, 20> room;
  const auto written = std::to_chars(room.data(), room.data() + room.size(), number);
  const auto digits = static_cast<std::size_t>(written.ptr - room.data());
  if (digits < filledTo) text.append(filledTo - digits, '0');
  text.append(room.data(), digits);
}

// ---- What the output language says -----------------------------------------

struct Words {
  const DateNames& names;
  std::string quarter, week;
};

Words wordsOf(const std::string& language) {
  constexpr int stringTables = 3;
  const FacSTDictionary dictionary(PathFactory::getPathInstance(stringTables).stringTablePath());
  const ChartTranscoder codePage(codePageOfLanguage(language));
  const auto lookUp = [&](const char* key) {
    int length = 0;
    std::string english;
    return utf8(codePage.transcode(dictionary.LookUp(key, length, english)));
  };
  return {dateNames(language), lookUp(" Q "), lookUp(" WK ")};
}

const Words& words() {
  static auto& ofLanguage = *new OfOutputLanguage<Words>;
  return ofLanguage.get(wordsOf);
}

// ---- Times -----------------------------------------------------------------

constexpr std::int64_t millisecondsPerSecond = 1000;
constexpr std::int64_t secondsPerMinute = 60;
constexpr std::int64_t millisecondsPerMinute = millisecondsPerSecond * secondsPerMinute;
constexpr std::int64_t minutesPerHour = 60;
constexpr std::int64_t hoursPerDay = 24;

constexpr int always = std::numeric_limits<int>::min();
constexpr int never = std::numeric_limits<int>::max();

constexpr bool isAbove(int width, int limit) { return limit == always || width > limit; }

/// The widths above which a time has its smaller parts.
struct TimeWidths {
  int second, millisecond;
};

void appendSecond(std::string& text, std::int64_t ofDay, TimeWidths above, int width) {
  if (!isAbove(width, above.second)) return;
  text += ':';
  appendNumber(text, ofDay / millisecondsPerSecond % secondsPerMinute, 2);
  if (!isAbove(width, above.millisecond)) return;
  const CmnLoc* locale = CmnLoc::shared();
  text += locale ? std::string_view(locale->decimalSeparator) : ".";
  appendNumber(text, ofDay % millisecondsPerSecond, 3);
}

void appendHourAndMinute(std::string& text, std::int64_t minutes) {
  appendNumber(text, minutes / minutesPerHour, 2);
  text += ':';
  appendNumber(text, minutes % minutesPerHour, 2);
}

// ---- Dates -----------------------------------------------------------------

/// A date's parts in their order; all other characters stand for themselves.
///   d  day of the month         j  day of the year
///   m  month, two digits        M  month, as many digits as it has
///   b  month's short name       B  month's name, short or long
///   y  year, of two digits or all
///   A  weekday's name, short or long
///   q  quarter                  Q  the word between quarter and year
///   w  week                     W  the word before the week
///   H  hour and minute          I  minute of the hour; both with second and
///                                  millisecond by the width
struct DateLook {
  std::string_view parts;
  int longAbove = always; ///< the width above which a year or name is long
  TimeWidths time = {never, never};
};

constexpr auto looks = [] {
  std::array<DateLook, 87> table{};
  table[20] = {"d-b-y", 9};
  table[22] = {"d-b-y H", always, {17, 20}};
  table[23] = table[38] = table[39] = {"d.m.y", 8};
  table[24] = {"j/y", 5};
  table[26] = {"A", 3};
  table[27] = {"B", 3};
  table[28] = {"b y", 6};
  table[29] = {"qQy", 7};
  table[30] = {"Ww y", 8};
  table[86] = {"d.M.y I", always, {always, 19}};
  return table;
}();

struct Moment {
  CalendarDay day;
  std::int64_t ofDay; ///< milliseconds
};

void appendYear(std::string& text, std::int64_t year, bool isLong) {
  constexpr std::int64_t century = 100;
  const std::int64_t digits = std::abs(year);
  if (isLong && year < 0) text += '-';
  appendNumber(text, isLong ? digits : digits % century, isLong ? 4 : 2);
}

void appendTime(std::string& text, char part, std::int64_t ofDay, TimeWidths above, int width) {
  const std::int64_t minutes = ofDay / millisecondsPerMinute;
  if (part == 'H')
    appendHourAndMinute(text, minutes);
  else
    appendNumber(text, minutes % minutesPerHour, 2);
  appendSecond(text, ofDay, above, width);
}

void appendPart(std::string& text, char part, const CalendarDay& day, bool isLong) {
  const DateNames& names = words().names;
  const unsigned month = day.month - 1;
  switch (part) {
  case 'd':
    return appendNumber(text, day.dayOfMonth, 2);
  case 'j':
    return appendNumber(text, day.dayOfYear, 3);
  case 'm':
    return appendNumber(text, day.month, 2);
  case 'M':
    return appendNumber(text, day.month, 1);
  case 'y':
    return appendYear(text, day.year, isLong);
  case 'b':
    text += names.shortMonths[month];
    return;
  case 'B':
    text += (isLong ? names.months : names.shortMonths)[month];
    return;
  case 'A':
    text += (isLong ? names.days : names.shortDays)[day.dayOfWeek];
    return;
  case 'q':
    return appendNumber(text, month / 3 + 1, 1);
  case 'Q':
    text += words().quarter;
    return;
  case 'w': // the first begins with the year, so that week and year agree
    return appendNumber(text, (day.dayOfYear - 1) / 7 + 1, 1);
  case 'W':
    text += words().week;
    return;
  default:
    text += part;
  }
}

} // namespace

std::optional<std::string> dateText(double value, int code, int width) {
  const auto instant = instantOf(value);
  if (!instant) return std::nullopt;
  const CalendarDay day = calendarDay(instant->day);
  const DateLook& look = looks[static_cast<std::size_t>(code)];
  std::string text;
  for (const char part : look.parts) {
    if (part == 'H' || part == 'I')
      appendTime(text, part, instant->millisecond, look.time, width);
    else
      appendPart(text, part, day, isAbove(width, look.longAbove));
  }
  text.erase(0, text.find_first_not_of(' ')); // the word before the week
  return processText(std::move(text));
}

// A duration below zero is the one above it with a sign: it is cut towards zero,
// and what shows as zero shows no sign.
std::optional<std::string> durationText(double value, int code, int width) {
  constexpr int hours = 21;
  constexpr int days = 25;
  constexpr double most = 0x1p62; // minutes still fit
  const auto instant = instantOf(std::abs(value));
  if (!instant || std::abs(value) >= most) return std::nullopt;

  const TimeWidths above = code == days ? TimeWidths{9, 12} : TimeWidths{5, 8};
  std::int64_t shownTo = millisecondsPerMinute;
  if (isAbove(width, above.second)) shownTo = millisecondsPerSecond;
  if (isAbove(width, above.millisecond)) shownTo = 1;
  const bool showsAsZero = instant->day == 0 && instant->millisecond < shownTo;

  const std::int64_t ofDay = instant->millisecond / millisecondsPerMinute;
  const std::int64_t minutes = instant->day * hoursPerDay * minutesPerHour + ofDay;
  std::string text(value < 0 && !showsAsZero ? "-" : "");
  if (code == days) {
    appendNumber(text, instant->day, 3);
    text += ' ';
  }
  if (code == days || code == hours)
    appendHourAndMinute(text, code == days ? ofDay : minutes);
  else
    appendNumber(text, minutes, 2);
  appendSecond(text, instant->millisecond, above, width);
  return processText(std::move(text));
}

} // namespace host
