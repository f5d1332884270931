#include <chrono>
#include <cmath>
#include <limits>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <host/CodePages.h>
#include <host/Formatter.h>
#include <host/Missing.h>
#include <host/Settings.h>
#include <host/StringTables.h>

#include "host/text/ErrorCapture.h"

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct NumberCase {
  double value;
  int type, width, decimals;
  const char* text;
  const char* separator = "";
};

void expectTexts(std::initializer_list<NumberCase> cases) {
  for (const auto& [value, type, width, decimals, text, separator] : cases)
    EXPECT_EQ(formatter::formattedValue(OBS{.number = value}, type, width, decimals, separator),
              text)
        << value << " type " << type << " width " << width << " decimals " << decimals;
}

struct DateCase {
  double value;
  int type, width;
  const char* text;
};

void expectDates(std::initializer_list<DateCase> cases) {
  for (const auto& [value, type, width, text] : cases)
    expectTexts({{value, type, width, 0, text}});
}

/// Seconds since 14 October 1582.
double at(int year, unsigned month, unsigned day, double time = 0) {
  using namespace std::chrono;
  using namespace std::chrono_literals;
  const auto days =
      sys_days(std::chrono::year(year) / static_cast<int>(month) / static_cast<int>(day)) -
      sys_days(1582y / October / 14);
  return static_cast<double>(days.count()) * 86400 + time;
}

constexpr double quarterToTwo = 13 * 3600 + 45 * 60;

TEST(Formatter, WritesEveryNumberType) {
  for (const int plain : {-1, 0, 2, 3, 5, 6, 7, 8, 9, 10, 11, 12, 15, 16, 18, 32, 40, 41, 84, 87})
    expectTexts({{1234.567, plain, 8, 2, "1234.57"}, {-0.5, plain, 8, 2, "-0.50"}});
  expectTexts({
      {1234.5, 4, 10, 2, "$1234.50"},
      {-1234.5, 4, 10, 2, "-$1234.50"},
      {45.678, 31, 8, 1, "45.7%"},
      {123456, 17, 10, 2, "1.23E+05"},
      {-1.5e-120, 17, 0, 3, "-1.500E-120"},
      {2.5, 5, 0, -1, "2"},
      {0.1, 5, 0, 99, "0.1000000000000000"},
      {-0.001, 5, 8, 2, "0.00"},
  });
}

TEST(Formatter, GroupsDigitsWhenGivenASeparator) {
  expectTexts({
      {100, 5, 0, 0, "100", ","},
      {1000, 5, 0, 0, "1,000", ","},
      {-1234567.891, 5, 0, 2, "-1,234,567.89", ","},
      {1234567, 4, 0, 0, "$1\u202F234\u202F567", "\u202F"},
      {123456, 17, 0, 2, "1.23E+05", ","},
  });
}

TEST(Formatter, FallsBackToScientificThenAsterisks) {
  expectTexts({
      {1234567.891, 5, 10, 2, "1234567.89"},
      {1234567.891, 5, 9, 2, "1.235E+06"},
      {1234567.891, 5, 8, 2, "1.23E+06"},
      {1234567.891, 5, 4, 2, "****"},
      {-1234567.891, 5, 8, 2, "-1.2E+06"},
      {-1234567.891, 5, -8, 2, "-1234567.89"},
      {9.996e99, 5, 8, 0, "1.0E+100"},
      {1234567, 4, 7, 2, "$1E+06"},
      {-0.004, 5, 3, 2, "***"},
      {1.0 / 3, 17, 8, 9, "3.33E-01"},
      {1e300, 5, 40, 2, "1.000000000000000E+300"},
  });
  EXPECT_EQ(formatter::formattedValue({.number = -1.7e308}, 4, 0, 99, "''").size(),
            2U + 309 + 2 * 102 + 1 + 16);
}

TEST(Formatter, WritesMissingAndInfiniteValues) {
  for (const int type : {5, 20, 21}) {
    expectTexts({{host::systemMissing, type, 8, 2, ""},
                 {infinity, type, 0, 2, "Inf"},
                 {-infinity, type, 3, 0, "***"},
                 {std::nan(""), type, 8, 2, "NaN"}});
  }
}

TEST(Formatter, FollowsTheSystemsMinimumOfIntegerDigits) {
  CmnSys::shared().minimumIntegerDigits = 0;
  expectTexts({{0.25, 5, 8, 2, ".25"}, {0, 5, 8, 0, "0"}, {0.25, 3, 8, 2, "0.25"}});
  CmnSys::shared().minimumIntegerDigits = 5;
  expectTexts({{7.5, 31, 8, 1, "00007.5%"}, {1234.5, 5, 8, 1, "01,234.5", ","}});
  CmnSys::shared() = {};
}

TEST(Formatter, PutsCustomCurrencyAffixesAround) {
  currencyFormat::SetCCX(0, {"€", "", "-", ""});
  currencyFormat::SetCCX(1, {"", " kr ", "(", ")"});
  currencyFormat::SetCCX(2, {"#", "", "", ""});
  expectTexts({
      {5, 33, 5, 2, "€5.00"}, // five characters, seven bytes
      {-5, 33, 0, 2, "-€5.00"},
      {-1234567, 33, 9, 2, "-€1.2E+06"},
      {5, 34, 0, 0, "5 kr"},
      {-5, 34, 0, 0, "(5 kr )"},
      {-5, 35, 0, 0, "-#5"},
      {-5, 37, 0, 1, "-5.0"},
  });
  for (int number = 0; number < 3; ++number)
    currencyFormat::SetCCX(number, {});
}

TEST(Formatter, WritesDates) {
  const double noon = at(2000, 1, 5, quarterToTwo);
  expectDates({
      {noon, 20, 9, "05-Jan-00"},
      {noon, 20, 10, "05-Jan-2000"},
      {noon, 22, 17, "05-Jan-2000 13:45"},
      {noon, 22, 18, "05-Jan-2000 13:45:00"},
      {noon + 30.25, 22, 21, "05-Jan-2000 13:45:30.250"},
      {noon, 23, 8, "05.01.00"},
      {noon, 23, 9, "05.01.2000"},
      {noon, 38, 9, "05.01.2000"},
      {noon, 39, 8, "05.01.00"},
      {noon, 24, 5, "005/00"},
      {at(2000, 12, 31), 24, 6, "366/2000"},
      {noon, 26, 3, "Wed"},
      {noon, 26, 4, "Wednesday"},
      {noon, 27, 3, "Jan"},
      {noon, 27, 4, "January"},
      {noon, 28, 6, "Jan 00"},
      {noon, 28, 7, "Jan 2000"},
      {at(2000, 3, 31), 29, 7, "1 Q 00"},
      {at(2000, 4, 1), 29, 8, "2 Q 2000"},
      {at(2000, 1, 7), 30, 8, "WK 1 00"},
      {at(2000, 1, 8), 30, 9, "WK 2 2000"},
      {at(1999, 12, 31), 30, 9, "WK 53 1999"},
      {noon + 30.25, 86, 19, "05.1.2000 45:30"},
      {noon + 30.25, 86, 20, "05.1.2000 45:30.250"},
      // The width only selects parts.
      {noon, 20, 1, "05-Jan-00"},
      {noon, 23, -10, "05.01.00"},
      {noon, 22, std::numeric_limits<int>::min(), "05-Jan-2000 13:45"},
  });
}

TEST(Formatter, WritesDatesOfAllTimes) {
  expectDates({
      {0, 22, 23, "14-Oct-1582 00:00:00.000"},
      {-0.25, 22, 23, "13-Oct-1582 23:59:59.750"},
      {-1e-20, 22, 23, "13-Oct-1582 23:59:59.999"},
      {at(2000, 1, 1, -0.0001), 22, 20, "31-Dec-1999 23:59:59"},
      {at(2000, 1, 1, 45930.123), 22, 23, "01-Jan-2000 12:45:30.123"},
      {at(1900, 2, 28) + 86400, 20, 11, "01-Mar-1900"},
      {at(1200, 2, 29), 20, 11, "29-Feb-1200"},
      {at(33, 4, 3), 20, 11, "03-Apr-0033"},
      {at(-44, 3, 15), 20, 11, "15-Mar--0044"},
      {at(-44, 3, 15), 20, 9, "15-Mar-44"},
      {at(12000, 1, 1), 23, 10, "01.01.12000"},
      {0x1p62 * 86400 * 0.99, 26, 9, "Tuesday"},
      {0x1p62 * 86400, 20, 11, "4E+23"},
      {-1e300, 20, 5, "*****"},
  });
}

TEST(Formatter, WritesDurations) {
  expectDates({
      {quarterToTwo + 30.25, 21, 5, "13:45"},
      {quarterToTwo + 30.25, 21, 6, "13:45:30"},
      {quarterToTwo + 30.25, 21, 8, "13:45:30"},
      {quarterToTwo + 30.25, 21, 9, "13:45:30.250"},
      {49.5 * 3600, 21, 5, "49:30"},
      {-49.5 * 3600 - 30.5, 21, 8, "-49:30:30"},
      {-59, 21, 5, "00:00"},
      {-59.9999, 21, 8, "-00:00:59"},
      {45930.123, 21, 11, "12:45:30.123"},
      {86399.99999, 21, 11, "23:59:59.999"},
      {4 * 86400 + quarterToTwo, 25, 9, "004 13:45"},
      {1234 * 86400 + quarterToTwo + 30.25, 25, 10, "1234 13:45:30"},
      {-5 * 86400 - 1.5, 25, 13, "-005 00:00:01.500"},
      {45.5 * 60, 85, 5, "45"},
      {45.5 * 60, 85, 6, "45:30"},
      {5.25, 85, 9, "00:05.250"},
      {-90 * 60, 85, 0, "-90"},
      {0x1p62 * 0.99, 85, 8, "76092819304051899:44"},
      {0x1p62, 21, 8, "5E+18"},
      {-0x1p62, 21, 3, "***"},
  });
}

TEST(Formatter, FollowsTheOutputLanguageAndTheLocale) {
  const double date = at(2000, 3, 5, 0.5);
  host::setOutputLanguage("de");
  expectTexts({{1234.5, 5, 0, 1, "1.234,5", "."}, {1234567, 5, 8, 1, "1,23E+06"}});
  expectDates({{date, 27, 4, "März"},
               {date, 26, 4, "Sonntag"},
               {date, 30, 8, "KW 10 00"},
               {date, 22, 21, "05-Mär-2000 00:00:00,500"}});
  CmnLoc::set({"\u00B7", ""});
  expectTexts({{0.5, 5, 3, 1, "0\u00B75"}});
  host::setOutputLanguage("ja");
  expectDates(
      {{date, 27, 4, "3月"}, {date, 29, 8, "1四半期 2000"}, {0.5, 21, 9, "00:00:00\u00B7500"}});
  host::setProcessCodePage("CP932");
  expectDates({{date, 27, 4, "3\x8C\x8E"}});
  host::setProcessCodePage("UTF-8");
  CmnLoc::remove();
  expectTexts({{0.5, 5, 3, 1, "0.5"}});
  CmnLoc::followLanguage();
  host::setOutputLanguage("");
  expectDates({{date, 27, 4, "March"}});
}

TEST(Formatter, WritesTextsThatReadBack) {
  rc::check("machine-readable numbers", [](double value) {
    const int decimals = *rc::gen::inRange(0, 17);
    const std::string text = formatter::formattedValue({.number = value}, 17, 0, decimals);
    const double error = std::pow(10, -decimals);
    RC_ASSERT(std::abs(std::stod(text) / value - 1) <= error || value == 0);
  });
  rc::check("days", [] {
    const int day = *rc::gen::inRange(1, 29);
    const int month = *rc::gen::inRange(1, 13);
    const int year = *rc::gen::inRange(1, 10000);
    const double time = *rc::gen::inRange(0, 86400);
    const double value = at(year, static_cast<unsigned>(month), static_cast<unsigned>(day), time);
    RC_ASSERT(formatter::formattedValue(value, KORVA_Format(23, 10, 0)) ==
              fmt::format("{:02}.{:02}.{:04}", day, month, year));
    RC_ASSERT(formatter::formattedValue(value, KORVA_Format(24, 8, 0)) ==
              fmt::format("{:03}/{:04}", 1 + std::floor((value - at(year, 1, 1)) / 86400), year));
  });
}

TEST(Formatter, WritesTextCellsWithoutTrailingBlanks) {
  OBS cells[2];
  std::copy_n("Gentoo penguin  ", 16, cells[0].bytes);
  EXPECT_EQ(formatter::formattedValue(cells[0], 1, 16, 0), "Gentoo penguin");
  EXPECT_EQ(formatter::formattedValue(cells[0], 1, 7, 0), "Gentoo");
}

TEST(Formatter, AsStringIsEmptyForFormatsOfNeitherNumbersNorDates) {
  ErrorCapture errors;
  std::string known;
  for (int type = 0; type < 256; ++type)
    if (!formatter::AsString(2, KORVA_Format(type, 8, 2)).empty())
      known += fmt::format("{} ", type);
  EXPECT_EQ(known, "2 3 4 5 6 7 8 9 10 11 12 15 16 17 20 21 22 23 24 25 26 27 28 29 30 31 32 33 34 "
                   "35 36 37 38 39 40 85 86 ");
  EXPECT_EQ(formatter::formattedValue(2, KORVA_Format(1, 80, 0)), "");
  EXPECT_THAT(errors.messages(), testing::IsEmpty());
}

} // namespace
