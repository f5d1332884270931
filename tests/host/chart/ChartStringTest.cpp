#include <tuple>

#include <gtest/gtest.h>

#include <host/ChartString.h>
#include <host/Missing.h>

namespace {

TEST(ChartString, CarriesDisplayAndEnglishText) {
  ChartString text;
  text.assign(u"X軸", u"X Axis");
  EXPECT_EQ(text.text(), u"X軸");
  EXPECT_EQ(text.toUTF8(), "X軸");
  EXPECT_EQ(text.toUTF8ForEng(), "X Axis");
  text.assign(text.english(), text.text()); // views of itself
  EXPECT_EQ(text.text(), u"X Axis");
  EXPECT_EQ(text.english(), u"X軸");
  text.assignUTF8("Größe");
  EXPECT_EQ(text.toUTF8ForEng(), "Größe");
  text.assignUTF8ForEng("Size");
  EXPECT_EQ(text.english(), u"Size");
  text.assignUTF8ForEng("Größe");
  EXPECT_EQ(text.english(), u"Größe");
}

TEST(ChartString, KnowsDecimalNumbers) {
  const std::pair<std::u16string, double> numbers[] = {
      {u"12.5", 12.5}, {u" +3 ", 3},    {u"-.5", -0.5},
      {u"1.", 1},      {u"1E-2", 0.01}, {u"0." + std::u16string(300, u'3'), 1.0 / 3}};
  for (const auto& [text, value] : numbers) {
    const ChartString string(text);
    EXPECT_TRUE(string.isNumber()) << string.toUTF8();
    EXPECT_EQ(string.convertToDouble(), value) << string.toUTF8();
  }
}

TEST(ChartString, TakesNothingElseForANumber) {
  for (const char16_t* text :
       {u"", u" ", u"abc", u"1 2", u"0x10", u"inf", u"-inf", u"nan", u"1e", u".", u"-", u"+",
        u"+-1", u"--1", u"1,5", u"1e999", u"\u0661", u"1\u00A0", u"\t1"}) {
    const ChartString string(text);
    EXPECT_FALSE(string.isNumber()) << string.toUTF8();
    EXPECT_EQ(string.convertToDouble(), host::systemMissing) << string.toUTF8();
  }
}

TEST(ChartString, WritesNumbersForMachines) {
  const std::tuple<double, int, const char*> cases[] = {
      {10, 16, "10"},        {0.1, 16, "0.1"},      {0.1 + 0.2, 16, "0.3"},
      {2.0 / 3, 3, "0.667"}, {1e300, 16, "1e+300"}, {-7.25, 99, "-7.25"}};
  for (const auto& [value, precision, text] : cases) {
    ChartString string;
    string.assignDouble(value, precision);
    EXPECT_EQ(string.toUTF8(), text);
  }
}

TEST(ChartString, TurnsEscapesAndCarriageReturnsIntoLineFeeds) {
  ChartString text;
  text.assign(u"a\\nb\\n\\\\n\\", u"\\n");
  text.unescapeLineFeeds();
  EXPECT_EQ(text.text(), u"a\nb\n\\\n\\");
  EXPECT_EQ(text.english(), u"\n");
  text.assign(u"a\r\nb", u"c\r");
  text.unifyLineEnds();
  EXPECT_EQ(text.text(), u"a\n\nb");
  EXPECT_EQ(text.english(), u"c\n");
}

} // namespace
