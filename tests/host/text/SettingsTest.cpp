#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <host/Locale.h>
#include <host/Settings.h>

#include "host/text/ErrorCapture.h"

namespace {

TEST(Locale, NamesMonthsAndDaysInEveryLanguage) {
  const std::pair<const char*, const char*> names[] = {
      {"en", "March Mar Sunday Sun . ,"},
      {"xx", "March Mar Sunday Sun . ,"},
      {"de", "März Mär Sonntag So , ."},
      {"fr", "mars mars dimanche dim. , \u00A0"},
      {"es", "marzo mar domingo dom , ."},
      {"it", "marzo mar domenica dom , ."},
      {"pl", "marzec mar niedziela niedz. , \u00A0"},
      {"ru", "март март воскресенье вс , \u00A0"},
      {"ja", "3月 3月 日曜日 日 . ,"},
      {"ko", "3월 3월 일요일 일 . ,"},
      {"zh-cn", "三月 3月 星期日 周日 . ,"},
      {"zh-tw", "3月 3月 星期日 週日 . ,"},
  };
  for (const auto& [language, expected] : names) {
    const host::DateNames& dates = host::dateNames(language);
    const host::NumberSymbols& symbols = host::numberSymbols(language);
    EXPECT_EQ(fmt::format("{} {} {} {} {} {}", dates.months[2], dates.shortMonths[2], dates.days[0],
                          dates.shortDays[0], symbols.decimal, symbols.grouping),
              expected)
        << language;
    EXPECT_EQ(&dates, &host::dateNames(language));
  }
  EXPECT_EQ(host::dateNames("en").days[6], "Saturday");
  EXPECT_EQ(host::dateNames("en").shortMonths[11], "Dec");
}

TEST(Settings, RefuseSignsThatWouldMakeNumbersUnreadable) {
  for (const CmnLoc& bad : {CmnLoc{"", ","},
                            {"ab", ""},
                            {"7", ""},
                            {",", ","},
                            {".", "12"},
                            {"\xC3", ""},
                            {"\n", ""},
                            {"e\u0301", ""}})
    EXPECT_FALSE(CmnLoc::set(bad)) << bad.decimalSeparator << " " << bad.groupingSeparator;
  EXPECT_EQ(CmnLoc::shared()->decimalSeparator, ".");
  EXPECT_TRUE(CmnLoc::set({"\u066B", "\u066C"}));
  CmnLoc::followLanguage();
}

TEST(Settings, ReportCurrenciesThatAreNone) {
  ErrorCapture errors;
  EXPECT_FALSE(currencyFormat::SetCCX(5, {}));
  EXPECT_EQ(currencyFormat::GetCCX(-1).getPrefix(), "");
  EXPECT_THAT(errors.messages(), testing::ElementsAre("custom currency 5 out of range (0-4)",
                                                      "custom currency -1 out of range (0-4)"));
}

} // namespace
