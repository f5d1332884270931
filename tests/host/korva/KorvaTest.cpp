#include <gtest/gtest.h>

#include <host/Korva.h>

#include <fmt/format.h>
#include <host/CodePages.h>
#include <host/Data.h>
#include <host/ErrorLog.h>
#include <host/Settings.h>

#include "../data/ScratchFolder.h"

namespace {

/// Takes the reports away from standard error and starts with an empty log.
class Korva : public testing::Test {
protected:
  void SetUp() override {
    host::setErrorCallback([](const host::ErrorReport&) {});
    while (host::takeError()) {
    }
  }
  void TearDown() override {
    korva_close_(&dictionary);
    host::setErrorCallback({});
  }

  int64_t open(const std::string& path) {
    const auto length = static_cast<int64_t>(path.size());
    return korva_open_(path.data(), &length, &dictionary);
  }
  int64_t find(const std::string& name) {
    const auto length = static_cast<int64_t>(name.size());
    return korva_findcolumn_(&dictionary, name.data(), &length);
  }
  int64_t use(std::vector<int64_t> columns) {
    const auto count = static_cast<int64_t>(columns.size());
    return korva_usevariables_(&dictionary, columns.data(), &count);
  }
  int64_t read(int64_t row, int64_t capacity) {
    return korva_readrow_(&dictionary, &row, cells, &capacity);
  }
  static std::string error(int64_t capacity = 1000) {
    std::string text(static_cast<std::size_t>(capacity), '?');
    int64_t length = -1;
    const int64_t taken = korva_geterror_(text.data(), &capacity, &length);
    return taken == 1 ? text.substr(0, static_cast<std::size_t>(length)) : fmt::format("{}", taken);
  }

  ScratchFolder folder;
  void* dictionary = nullptr;
  double cells[8] = {};
};

TEST_F(Korva, ReadsTheRowsOfAnOpenDataSet) {
  ASSERT_EQ(open(folder.write("t.csv", "a,name,b\n1,Torgersen,\n")), 0);
  EXPECT_EQ(korva_rowcount_(&dictionary), 1);
  EXPECT_EQ(korva_columncount_(&dictionary), 3);
  EXPECT_EQ(find("b"), 3);
  EXPECT_EQ(korva_cellcount_(&dictionary), 4);
  ASSERT_EQ(use({3, 2}), 0);
  EXPECT_EQ(korva_cellcount_(&dictionary), 3);
  ASSERT_EQ(read(1, 8), 3);
  EXPECT_EQ(cells[0], korva_missing_());
  EXPECT_EQ(std::string(reinterpret_cast<char*>(cells + 1), 16), "Torgersen       ");
  const int64_t splits[] = {2};
  const int64_t one = 1;
  EXPECT_EQ(korva_splitby_(&dictionary, splits, &one), 0);
  EXPECT_EQ(static_cast<KORVA_DataSource*>(dictionary)->SplitVariableIndex(0), 1);
  EXPECT_EQ(error(), "0");
}

TEST_F(Korva, RefusesWhatTheDataSetDoesNotHave) {
  ASSERT_EQ(open(folder.write("t.csv", "a,b\n1,2\n")), 0);
  const std::pair<int64_t, const char*> refused[] = {
      {find("c"), "no column has the name \"c\""},
      {use({3}), "no column 3: the data set has 2 columns"},
      {use({0}), "no column 0: the data set has 2 columns"},
      {use({int64_t{1} << 32}), "no column 4294967296: the data set has 2 columns"},
      {read(0, 8), "no row 0: the data set has 1 rows"},
      {read(2, 8), "no row 2: the data set has 1 rows"},
      {read(1, 1), "room for 1 cells: a row takes 2"},
  };
  for (const auto& [result, message] : refused) {
    EXPECT_EQ(result, -1);
    EXPECT_EQ(error(), message);
  }
}

TEST_F(Korva, ReportsADataSetThatCannotBeOpened) {
  dictionary = this;
  EXPECT_EQ(open(folder.path() / "none.csv"), -1);
  EXPECT_EQ(dictionary, nullptr);
  EXPECT_EQ(error(), (folder.path() / "none.csv").string() + ": No such file or directory");
}

TEST_F(Korva, RefusesNullArgumentsAndWrongLengthsByName) {
  const int64_t five = 5;
  const int64_t negative = -1;
  const int64_t huge = int64_t{1} << 40;
  int64_t length = 0;
  void* none = nullptr;
  const std::pair<int64_t, const char*> refused[] = {
      {korva_open_("a.csv", &five, nullptr), "the argument dictionary is null"},
      {korva_open_("a.csv", nullptr, &none), "the argument length is null"},
      {korva_open_(nullptr, &five, &none), "the argument path is null"},
      {korva_open_("a.csv", &negative, &none), "a data set without a path"},
      {korva_open_("a\0csv", &five, &none), "the argument path holds a NUL character"},
      {korva_close_(nullptr), "the argument dictionary is null"},
      {korva_rowcount_(nullptr), "the argument dictionary is null"},
      {korva_rowcount_(&none), "not an open data set"},
      {korva_setbootstrapping_(nullptr), "the argument on is null"},
      {korva_geterror_(nullptr, &five, &length), "the argument text is null"},
  };
  for (const auto& [result, message] : refused) {
    EXPECT_EQ(result, -1);
    EXPECT_EQ(error(), message);
  }
  ASSERT_EQ(open(folder.write("t.csv", "a\n1\n")), 0);
  EXPECT_EQ(korva_usevariables_(&dictionary, &five, &huge), -1);
  EXPECT_EQ(error(), "a list of 1099511627776 columns: it can have 0 to 65536");
  EXPECT_EQ(korva_usevariables_(&dictionary, nullptr, &five), -1);
  EXPECT_EQ(error(), "the argument columns is null");
}

TEST_F(Korva, ClosesTwiceAndRefusesAClosedDataSet) {
  ASSERT_EQ(open(folder.write("t.csv", "a\n1\n")), 0);
  void* copy = dictionary;
  {
    const ProcedureDataSource source(nullptr, static_cast<KORVA_FortranDictionary*>(dictionary));
    EXPECT_EQ(korva_close_(&dictionary), 0);
    EXPECT_EQ(dictionary, nullptr);
    EXPECT_EQ(korva_rowcount_(&copy), -1);
    EXPECT_EQ(error(), "not an open data set");
    EXPECT_EQ(source.ColumnCount(), 1);
  }
  void* again = copy;
  EXPECT_EQ(korva_close_(&again), 0);
  EXPECT_EQ(korva_rowcount_(&copy), -1);
  EXPECT_EQ(error(), "not an open data set");
}

TEST_F(Korva, GivesEachErrorOnceOldestFirstAndCutsItAtACharacter) {
  host::reportError("caf\xC3\xA9");
  host::reportError("second");
  EXPECT_EQ(error(4), "caf");
  EXPECT_EQ(error(), "second");
  EXPECT_EQ(error(), "0");
}

TEST_F(Korva, SetsTheServicesOfTheHost) {
  const int64_t two = 2;
  const int64_t on = 1;
  const int64_t off = 0;
  EXPECT_EQ(korva_setlanguage_("xx", &two), -1);
  EXPECT_EQ(error(), "there are no texts in the language \"xx\"");
  EXPECT_EQ(korva_setbootstrapping_(&on), 0);
  EXPECT_EQ(qbootstrapping_() & 1, 1);
  EXPECT_EQ(korva_setbootstrapping_(&off), 0);
  EXPECT_EQ(qbootstrapping_() & 1, 0);
}

int64_t setLocale(std::string_view decimal, std::string_view grouping) {
  const auto lengths = std::pair<int64_t, int64_t>(decimal.size(), grouping.size());
  return korva_setlocale_(decimal.data(), &lengths.first, grouping.data(), &lengths.second);
}

int64_t setCurrency(int64_t number) {
  const int64_t one = 1;
  const int64_t none = -1;
  return korva_setcurrency_(&number, "$", &one, "", &none, "(", &one, ")", &one);
}

TEST_F(Korva, SetsHowDisplayTextsWriteNumbers) {
  const int64_t on = 1;
  const int64_t off = 0;
  EXPECT_EQ(korva_setgrouping_(&on), 0);
  EXPECT_TRUE(CmnSys::shared().digitGrouping());
  EXPECT_EQ(korva_setgrouping_(&off), 0);
  EXPECT_FALSE(CmnSys::shared().digitGrouping());
  EXPECT_EQ(korva_setintegerdigits_(&off), 0);
  EXPECT_EQ(CmnSys::shared().minimumIntegerDigits, 0);
  CmnSys::shared() = {};

  host::setProcessCodePage("CP1252");
  EXPECT_EQ(setLocale(",", "\xA0"), 0);
  host::setProcessCodePage("UTF-8");
  EXPECT_EQ(CmnLoc::shared()->decimalSeparator, ",");
  EXPECT_EQ(CmnLoc::shared()->groupingSeparator, "\u00A0");
  EXPECT_EQ(korva_clearlocale_(), 0);
  EXPECT_EQ(CmnLoc::shared(), nullptr);
  EXPECT_EQ(setLocale("", ""), 0);
  EXPECT_EQ(CmnLoc::shared()->decimalSeparator, ".");

  EXPECT_EQ(setCurrency(4), 0);
  EXPECT_EQ(currencyFormat::GetCCX(4).getPrefix(), "$");
  EXPECT_EQ(currencyFormat::GetCCX(4).getSuffix(), "");
  EXPECT_EQ(currencyFormat::GetCCX(4).getNegativePrefix(), "(");
  EXPECT_EQ(currencyFormat::GetCCX(4).getNegativeSuffix(), ")");
  currencyFormat::SetCCX(4, {});

  const int64_t many = 41;
  const std::pair<int64_t, const char*> refused[] = {
      {korva_setintegerdigits_(&many), "at least 41 integer digits: it can be 0 to 40"},
      {setLocale(".", "."),
       "the decimal sign \".\" and the grouping sign \".\": each must be one character, no digit, "
       "and they must differ; the grouping sign may be empty"},
      {setCurrency(5), "custom currency 5 out of range (0-4)"},
      {setCurrency(int64_t{1} << 32), "custom currency 4294967296 out of range (0-4)"},
      {korva_setgrouping_(nullptr), "the argument on is null"},
      {korva_setcurrency_(&on, nullptr, &on, "", &off, "", &off, "", &off),
       "the argument prefix is null"},
  };
  for (const auto& [result, message] : refused) {
    EXPECT_EQ(result, -1);
    EXPECT_EQ(error(), message);
  }
}

} // namespace
