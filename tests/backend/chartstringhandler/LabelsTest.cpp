#include "../support/BuilderTest.h"

#include <cstring>
#include <limits>
#include <tuple>

#include <host/Missing.h>
#include <host/Settings.h>

using testing::ElementsAre;
using testing::IsEmpty;

class Labels : public BuilderTest {
protected:
  Labels() {
    KORVA_ValueLabelMap sexes;
    sexes.add(1, "  female  ");
    sexes.add(2, "   ");
    dictionary =
        described({Column("sex", " Sex ", 0, {5, 8, 0}, sexes), Column("isle", "", 10, {1, 10, 0}),
                   Column("mass", "Body mass", 0, {5, 40, 15})},
                  {0, 1, 2});
    dictionary->splits = {0, -1, 1};
    chartOn(dictionary);
    std::memcpy(row[1].bytes, "Torgersen ", 10);
  }
  ~Labels() override {
    CmnSys::shared() = {};
    CmnLoc::followLanguage();
  }

  static std::string read(int string) {
    return string == -1 ? "-1" : registry().getUTF8String(string);
  }

  Dictionary* dictionary;
  /// A row of sex and isle: the isle takes two cells.
  OBS row[3] = {{.number = 1}, {.number = 0}, {.number = 0}};
};

TEST_F(Labels, ShowValueLabelsElseValues) {
  const OBS female{.number = 1};
  const OBS blank{.number = 2};
  const OBS other{.number = 3};
  const OBS missing{.number = host::systemMissing};
  ChartXml& r = registry();
  EXPECT_EQ(read(r.ValueLabel(1, female, -1)), "female  ") << "trailing blanks stay";
  EXPECT_EQ(read(r.ValueLabel(1, blank, -1)), "2");
  EXPECT_EQ(read(r.ValueLabel(1, female, 3)), "fem");
  EXPECT_EQ(read(r.ValueLabel(1, female, 0)), "female  ");
  const int before = text("");
  EXPECT_EQ(r.ObjectLabel(1, other), before + 2) << "the value, and the pattern around it";
  EXPECT_EQ(read(before + 2), "3");
  EXPECT_EQ(read(r.ObjectLabel(1, female)), "female  ");
  EXPECT_EQ(read(r.ObjectLabel(1, missing)), "Missing");
  EXPECT_EQ(read(r.MeanValue(1, other)), "3.00");
  EXPECT_EQ(read(r.MeanValue(3, OBS{.number = 0.5})), "0.5000000000000000")
      << "16 decimals at most";
  EXPECT_EQ(read(r.MeanValue(1, missing)), "-1");
  EXPECT_EQ(read(r.ValueLabel(2, row[1], -1)), "Torgersen");
  EXPECT_THAT(takeReports(), IsEmpty());
  EXPECT_EQ(read(r.ValueLabel(9, missing, -1)), "Missing") << "before any check";
  EXPECT_EQ(read(r.ValueLabel(9, female, -1)), "-1");
  EXPECT_THAT(takeReports(),
              ElementsAre("variable index out of range 9 3", "variable index out of range 9 3",
                          "invalid variable index -1"));
}

TEST_F(Labels, ShowNumbersInAnyFormatAndCodesOfDaysAndMonthsByName) {
  constexpr double inf = std::numeric_limits<double>::infinity();
  const auto packed = [](int type, int width = 9) { return type << 16 | width << 8 | 2; };
  const std::tuple<int, double, const char*> cases[] = {
      {-1, 0.1, "0.1"},
      {-1, host::systemMissing, "-1"},
      {packed(5), host::systemMissing, "-1"},
      {packed(5), 2.345, "2.35"},
      {packed(17), 1500, "1.50E+03"},
      {packed(5), inf, "Inf"},
      {packed(20), 13166064000, "01-Jan-00"},
      {packed(26), 1, "Sunday"},
      {packed(26), 6.9, "Friday"},
      {packed(26), 7, "Saturday"},
      {packed(26), 8, "Sunday"},
      {packed(26), 0, "Saturday"},
      {packed(26), -1, "Friday"},
      {packed(26), -7, "Saturday"},
      {packed(26), -1e300, "Friday"},
      {packed(26, 3), 2, "Mon"},
      {packed(26), 86400, "Friday"},
      {packed(26), 13166064000, "Saturday"},
      {packed(27), 1, "January"},
      {packed(27), 12, "December"},
      {packed(27), 0, "December"},
      {packed(27), 13, "January"},
      {packed(27), -1, "November"},
      {packed(27, 3), 2, "Feb"},
      {packed(27), 86400, "December"},
      {packed(27), 86401, "October"},
      {packed(26), inf, "Inf"},
      {packed(26), -inf, "-Inf"},
      {packed(27), std::numeric_limits<double>::quiet_NaN(), "NaN"},
  };
  for (const auto& [format, value, expected] : cases) {
    EXPECT_EQ(read(registry().LRValueAsString(value, format)), expected)
        << (format >> 16) << " " << value;
  }
  for (const int type : {0, 1, 13, 14, 18, 19, 41, 84, 87, 255})
    EXPECT_EQ(registry().LRValueAsString(1, packed(type)), -1) << type;
  EXPECT_EQ(registry().LRValueAsString(1, -2), -1);
  EXPECT_THAT(takeReports(), IsEmpty());
  ChartStringHandler handler;
  EXPECT_EQ(handler.formattedStringDate(KORVA_Format(20, 11, 0), 86412), "07-Dec-2000")
      << "a code, whatever its size";
}

TEST_F(Labels, GroupDigitsAsSystemAndLocaleSay) {
  dictionary->columns[2] = Column("mass", "", 0, {5, 12, 1});
  const OBS mass{.number = 1234567.25};
  EXPECT_EQ(read(registry().ValueLabel(3, mass, -1)), "1234567.2");
  CmnSys::shared().optionFlags = 3;
  EXPECT_EQ(read(registry().ValueLabel(3, mass, -1)), "1,234,567.2");
  CmnLoc::set({".", "\u00A0"});
  EXPECT_EQ(read(registry().ValueLabel(3, mass, -1)), "1 234 567.2");
  EXPECT_EQ(read(registry().Value(3, mass)), "1234567.2") << "values are never grouped";
  CmnLoc::set({",", "."});
  EXPECT_EQ(read(registry().ValueLabel(3, mass, -1)), "1.234.567,2");
  CmnLoc::remove();
  EXPECT_EQ(read(registry().ValueLabel(3, mass, -1)), "1,234,567.2");
}

TEST_F(Labels, ListSplitVariablesWithThePartsAskedFor) {
  const std::pair<int, const char*> cases[] = {{0b1111, "sex Sex = 1 female  ; isle = Torgersen"},
                                               {0b0000, " = ;  = "},
                                               {0b0100, "Sex = ; isle = "},
                                               {0b0001, " = female  ;  = Torgersen"},
                                               {0b1010, "sex = 1; isle = Torgersen"}};
  for (const auto& [parts, expected] : cases) {
    const int list = registry().SplitList(row, (parts & 8) != 0, (parts & 4) != 0, (parts & 2) != 0,
                                          (parts & 1) != 0);
    EXPECT_EQ(read(list), expected) << parts;
  }
}

TEST_F(Labels, HeadSplitGroupsByLabelAndValue) {
  EXPECT_EQ(read(registry().SplitHeader(row, true)), "Sex: female  , isle: Torgersen");
  EXPECT_THAT(takeReports(), IsEmpty());
  ChartStringHandler handler;
  const int composite = handler.CompositeString("[%1:^1:]1");
  EXPECT_EQ(handler.SplitListByPattern(row, composite), -1);
  EXPECT_EQ(handler.SplitList(row, true, true, true, true), -1);
  EXPECT_THAT(takeReports(), ElementsAre("no datasource", "no datasource"));
  dictionary->splits.clear();
  handler.SetDataSource(dictionary);
  EXPECT_EQ(handler.SplitListByPattern(row, composite), -1);
  EXPECT_EQ(handler.BeginRepeat(composite), 0) << "untouched: no list was opened";
  EXPECT_EQ(read(registry().SplitList(nullptr, true, true, true, true)), "");
  EXPECT_THAT(takeReports(), IsEmpty()) << "no split variables, no values";
  dictionary->splits = {0, 7, 1};
  EXPECT_EQ(read(registry().SplitHeader(row, true)), "Sex: female  ");
  EXPECT_EQ(read(registry().SplitHeader(nullptr, true)), "");
  EXPECT_THAT(takeReports(),
              ElementsAre("invalid variable index 7", "no values of the split variables"));
}
