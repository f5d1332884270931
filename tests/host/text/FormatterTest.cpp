#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <host/CodePages.h>
#include <host/Formatter.h>
#include <host/Missing.h>
#include <host/Settings.h>

#include "host/text/ErrorCapture.h"

namespace {

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

TEST(Formatter, WritesEveryNumberType) {
  for (const int plain : {3, 5, 6, 7, 8, 9, 11, 15, 16, 25, 32, 40})
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
      {1000, 5, 0, 0, "1,000", ","},
      {-1234567.891, 5, 0, 2, "-1,234,567.89", ","},
      {1234567, 4, 0, 0, "$1\u202F234\u202F567", "\u202F"},
      {123456, 17, 0, 2, "1.23E+05", ","},
  });
}

TEST(Formatter, FallsBackToScientificThenAsterisks) {
  expectTexts({
      {1234567.891, 5, 9, 2, "1.235E+06"},
      {1234567.891, 5, 8, 2, "1.23E+06"},
      {1234567.891, 5, 4, 2, "****"},
      {-1234567.891, 5, 8, 2, "-1.2E+06"},
      {9.996e99, 5, 8, 0, "1.0E+100"},
      {1234567, 4, 7, 2, "$1E+06"},
      {-0.004, 5, 3, 2, "***"},
      {1.0 / 3, 17, 8, 9, "3.33E-01"},
      {1e300, 5, 40, 2, "1.000000000000000E+300"},
  });
}

TEST(Formatter, WritesMissingAndInfiniteValues) {
  const double infinity = std::numeric_limits<double>::infinity();
  expectTexts({
      {host::systemMissing, 5, 8, 2, ""},
      {std::nan(""), 4, 8, 2, "NaN"},
      {-infinity, 31, 8, 2, "-Inf"},
      {-infinity, 5, 3, 0, "***"},
  });
}

TEST(Formatter, FollowsTheSystemsMinimumOfIntegerDigits) {
  CmnSys::shared().minimumIntegerDigits = 0;
  expectTexts({{0.25, 5, 8, 2, ".25"}, {0, 5, 8, 0, "0"}, {0.25, 3, 8, 2, "0.25"}});
  CmnSys::shared().minimumIntegerDigits = 3;
  expectTexts({{7.5, 31, 8, 1, "007.5%"}, {1234.5, 5, 8, 1, "1234.5"}});
  CmnSys::shared() = {};
}

TEST(Formatter, PutsCustomCurrencyAffixesAround) {
  currencyFormat::SetCCX(0, {"€", "", "-", ""});
  currencyFormat::SetCCX(1, {"", " kr", "(", ")"});
  currencyFormat::SetCCX(2, {"#", "", "", ""});
  expectTexts({
      {5, 33, 5, 2, "€5.00"}, // five characters, seven bytes
      {-5, 33, 0, 2, "-€5.00"},
      {5, 34, 0, 0, "5 kr"},
      {-5, 34, 0, 0, "(5 kr)"},
      {-5, 35, 0, 0, "-#5"},
      {-5, 37, 0, 1, "-5.0"},
  });
  for (int number = 0; number < 3; ++number)
    currencyFormat::SetCCX(number, {});
  ErrorCapture errors;
  currencyFormat::SetCCX(5, {});
  EXPECT_EQ(currencyFormat::GetCCX(-1).getPrefix(), "");
  EXPECT_THAT(errors.messages(), testing::ElementsAre("custom currency 5 out of range (0-4)",
                                                      "custom currency -1 out of range (0-4)"));
}

TEST(Formatter, WritesTextCellsWithoutTrailingBlanks) {
  OBS cells[2];
  std::copy_n("Gentoo penguin  ", 16, cells[0].bytes);
  EXPECT_EQ(formatter::formattedValue(cells[0], 1, 16, 0), "Gentoo penguin");
  EXPECT_EQ(formatter::formattedValue(cells[0], 1, 7, 0), "Gentoo");
}

TEST(Formatter, ReportsFormatsThatAreNotBuiltYetOnceAndShowsThePlainNumber) {
  ErrorCapture errors;
  const KORVA_Format date(20, 5, 0);
  EXPECT_EQ(formatter::formattedValue(13166064000.0, date), "13166064000");
  EXPECT_EQ(formatter::AsString(13166064000.0, date), "13166064000");
  expectTexts({{1.25, 12, 3, 2, "1.25"}, {1.25, -1, 3, 2, "1.25"}});
  EXPECT_THAT(errors.messages(),
              testing::ElementsAre("display format 20 is not built yet: the plain number is shown",
                                   "display format 12 is not known: the plain number is shown",
                                   "display format -1 is not known: the plain number is shown"));
}

TEST(Formatter, AsStringIsEmptyForFormatsOfNeitherNumbersNorDates) {
  EXPECT_EQ(formatter::AsString(2, KORVA_Format(5, 8, 2)), "2.00");
  EXPECT_EQ(formatter::AsString(2, KORVA_Format(1, 80, 0)), "");
  EXPECT_EQ(formatter::AsString(2, KORVA_Format(99, 8, 0)), "");
  EXPECT_EQ(formatter::formattedValue(2, KORVA_Format(1, 80, 0)), "");
}

} // namespace
