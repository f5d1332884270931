#include "../support/BuilderTest.h"

#include <limits>

#include <host/Missing.h>
#include <host/StringTables.h>
#include <host/Text.h>

using testing::ElementsAre;
using testing::IsEmpty;

class Strings : public BuilderTest {
protected:
  ChartStringHandler& fresh() { return *handler_; }
  static int add(ChartStringHandler& handler, const char* bytes) {
    return handler.AddChartString(ChartString(host::utf16(bytes)));
  }

private:
  std::unique_ptr<ChartStringHandler> handler_ = std::make_unique<ChartStringHandler>();
};

TEST_F(Strings, HoldsTheVocabularyUnderHandles1To156) {
  ChartStringHandler& handler = fresh();
  const std::pair<int, const char*> anchors[] = {{1, "axisx"},
                                                 {10, "axisrtick"},
                                                 {13, "footnote"},
                                                 {17, "title"},
                                                 {36, "styleBy"},
                                                 {45, "areabar"},
                                                 {47, "bins"},
                                                 {55, "X Variable"},
                                                 {62, "tukeyInnerFence"},
                                                 {86, "none"},
                                                 {110, "false"},
                                                 {117, "base"},
                                                 {121, "all"},
                                                 {123, "matrixscatterinnery"},
                                                 {125, "yzplane"},
                                                 {144, "numPoints"},
                                                 {148, "Y Axis"},
                                                 {155, "X Axis"},
                                                 {156, "dot"}};
  for (const auto& [handle, word] : anchors) {
    EXPECT_EQ(handler.getXMLString(handle).toUTF8(), word) << handle;
  }
  EXPECT_THAT(takeReports(), IsEmpty());
  int filled = 0;
  for (int handle = 0; handle <= 156; ++handle)
    filled += !handler.getXMLString(handle).empty();
  EXPECT_EQ(filled, 154);
  EXPECT_THAT(takeReports(),
              ElementsAre("String not found for handle 0", "String not found for handle 46",
                          "String not found for handle 124"));
}

TEST_F(Strings, GivesOutHandlesFrom157AndAgainAfterReset) {
  ChartStringHandler& handler = fresh();
  EXPECT_EQ(add(handler, "a"), 157);
  EXPECT_EQ(handler.CompositeString("^1"), 158);
  EXPECT_EQ(add(handler, "b"), 159);
  Dictionary dictionary({Column("v", "", 0, {5, 8, 2})});
  handler.SetDataSource(&dictionary);
  handler.Reset();
  EXPECT_EQ(add(handler, "c"), 157);
  EXPECT_EQ(handler.getXMLString(157).toUTF8(), "c");
  EXPECT_EQ(handler.getXMLString(158).toUTF8(), "") << "composites are forgotten too";
  EXPECT_FALSE(handler.validVariable(0));
  EXPECT_THAT(takeReports(), ElementsAre("String not found for handle 158", "no datasource",
                                         "invalid variable index 0"));
}

TEST_F(Strings, LetsTheNextHandlePassTheCheckThoughItHoldsNoText) {
  ChartStringHandler& handler = fresh();
  EXPECT_TRUE(handler.validString(157, "label"));
  EXPECT_FALSE(handler.validString(158, "label"));
  EXPECT_FALSE(handler.validString(-1, "prefix"));
  EXPECT_TRUE(handler.getXMLString(157).empty());
  EXPECT_TRUE(handler.getXMLString(-5).empty());
  for (const int far : {(1 << 30) - 1, 2'000'000'000, std::numeric_limits<int>::max()}) {
    EXPECT_TRUE(handler.getXMLString(far).empty());
  }
  EXPECT_THAT(takeReports(),
              ElementsAre("label handle out of range", "prefix handle out of range",
                          "String not found for handle 157", "String not found for handle -5",
                          "String not found for handle 1073741823",
                          "String not found for handle 2000000000",
                          "String not found for handle 2147483647"));
}

TEST_F(Strings, ReportsAMissingTextFromThePlaceOfTheLookUp) {
  ChartStringHandler& handler = fresh();
  host::ErrorReport seen;
  host::setErrorCallback([&](const host::ErrorReport& report) { seen = report; });
  handler.getXMLString(46);
  EXPECT_EQ(seen.source, "backend/chartxml/src/chartstringhandler");
  EXPECT_EQ(seen.line, 1257U);
}

TEST_F(Strings, ChecksVariablesAgainstTheDataSource) {
  ChartStringHandler& handler = fresh();
  Dictionary dictionary({Column("a", "", 0, {5, 8, 2}), Column("b", "", 0, {5, 8, 2})});
  handler.SetDataSource(&dictionary);
  EXPECT_TRUE(handler.validVariable(1));
  EXPECT_FALSE(handler.validVariable(2));
  EXPECT_FALSE(handler.validVariable(-1));
  EXPECT_THAT(takeReports(), ElementsAre("invalid variable index 2", "invalid variable index -1"));
}

TEST_F(Strings, TurnsNumbersIntoTextsForMachines) {
  const std::pair<double, const char*> cases[] = {
      {2, "2"}, {0.1, "0.1"}, {-1.5e300, "-1.5e+300"}, {1e300, "1e+300"}, {100000, "100000"}};
  for (const auto& [number, expected] : cases) {
    EXPECT_EQ(registry().getUTF8String(registry().Double(number)), expected);
  }
  EXPECT_EQ(registry().getUTF8String(registry().LRValue(2.345, -1)), "2.345");
  const int next = text("");
  EXPECT_EQ(registry().LRValue(host::systemMissing, -1), -1);
  EXPECT_EQ(registry().Double(host::systemMissing), -1);
  EXPECT_EQ(registry().LRValue(host::systemMissing, 5 << 16), -1);
  EXPECT_EQ(text(""), next + 1) << "a missing value takes no handle";
  EXPECT_EQ(registry().getUTF8String(registry().LRValue(2.345, 5 << 16 | 8 << 8 | 2)), "2.35");
}

TEST_F(Strings, AssemblesACompositeOnceAndKeepsItsText) {
  ChartStringHandler& handler = fresh();
  const int composite = handler.CompositeString("^2 of ^1\\^", "^2 out of ^1");
  EXPECT_EQ(handler.AddParameter(composite, add(handler, "all\r\ncases")), 0);
  EXPECT_EQ(handler.AddParameter(composite, 17), 0);
  EXPECT_EQ(handler.EndCompositeString(composite), composite);
  const ChartString& resolved = handler.getXMLString(composite);
  EXPECT_EQ(resolved.toUTF8(), "title of all\n\ncases^");
  EXPECT_EQ(resolved.toUTF8ForEng(), "title out of all\n\ncases");
  EXPECT_EQ(&handler.getXMLString(composite), &resolved);
  EXPECT_EQ(handler.AddParameter(composite, 17), -1) << "it is closed";
  EXPECT_EQ(handler.BeginRepeat(composite), -1);
  EXPECT_EQ(handler.EndRepeat(composite), -1);
  EXPECT_EQ(handler.EndCompositeString(composite), -1);
  EXPECT_THAT(takeReports(), ElementsAre("add parameter failed", "begin repeat list failed",
                                         "end repeat list failed", "end composite string failed"));
}

TEST_F(Strings, RefusesStepsOfACompositeOutOfOrderAndGoesOn) {
  ChartStringHandler& handler = fresh();
  const int composite = handler.CompositeString("[%1:, ^1:]1");
  EXPECT_EQ(handler.EndRepeat(composite), -1) << "none was begun";
  EXPECT_EQ(handler.BeginRepeat(composite), 0);
  EXPECT_EQ(handler.BeginRepeat(composite), -1) << "one is open";
  EXPECT_EQ(handler.EndCompositeString(composite), -1);
  EXPECT_EQ(handler.AddParameter(composite, 17), 0);
  EXPECT_EQ(handler.AddParameter(composite, 13), 0);
  EXPECT_EQ(handler.EndRepeat(composite), 0);
  EXPECT_EQ(handler.EndCompositeString(composite), composite);
  EXPECT_EQ(handler.getXMLString(composite).toUTF8(), "title, footnote");
  EXPECT_THAT(takeReports(), ElementsAre("end repeat list failed", "begin repeat list failed",
                                         "end composite string failed"));
}

TEST_F(Strings, AssemblesEnglishBesideTheOutputLanguage) {
  ASSERT_TRUE(host::setOutputLanguage("ja"));
  ChartXml::Terminate();
  const ChartString pattern = registry().translate("E61215^1");
  ChartStringHandler& handler = fresh();
  const int composite = handler.CompositeString(pattern.toUTF8(), pattern.toUTF8ForEng());
  handler.AddParameter(composite, handler.AddChartString(registry().translate("X Axis")));
  handler.EndCompositeString(composite);
  const ChartString& made = handler.getXMLString(composite);
  EXPECT_EQ(made.toUTF8(), "X軸による重み付け");
  EXPECT_EQ(made.toUTF8ForEng(), "Weighted by X Axis");
  host::setOutputLanguage("");
}

TEST_F(Strings, ReadsAnOpenCompositeThatIsItsOwnParameterWithoutLooping) {
  ChartStringHandler& handler = fresh();
  const int composite = handler.CompositeString("<^1>");
  EXPECT_EQ(handler.AddParameter(composite, composite), 0);
  EXPECT_EQ(handler.EndCompositeString(composite), composite);
  EXPECT_EQ(handler.getXMLString(composite).toUTF8(), "<>") << "what it had when first read";
}

TEST_F(Strings, RefusesHandlesThatHoldNoComposite) {
  ChartStringHandler& handler = fresh();
  EXPECT_EQ(handler.AddParameter(17, 17), -1);
  EXPECT_EQ(handler.AddParameter(999, 17), -1);
  EXPECT_EQ(handler.BeginRepeat(17), -1);
  EXPECT_EQ(handler.EndRepeat(-2), -1);
  EXPECT_EQ(handler.EndCompositeString(17), -1);
  EXPECT_THAT(takeReports(),
              ElementsAre("composite string not found 17", "composite string not found 17",
                          "composite handle out of range", "composite string not found 17",
                          "composite string not found 17", "pattern handle out of range",
                          "composite string not found 17", "composite string not found 17"));
}

TEST_F(Strings, NumbersStyleNames) {
  EXPECT_EQ(registry().getUTF8String(registry().StyleString(96, 0)), "scatter_0");
  EXPECT_EQ(registry().StyleString(96, -1), -1);
  EXPECT_EQ(registry().StyleString(-1, 1), -1);
  EXPECT_THAT(takeReports(),
              ElementsAre("negative handles are not allowed -1", "string handle out of range"));
}

TEST_F(Strings, TrimsBlanksOnly) {
  const std::pair<std::string, std::string> cases[] = {
      {"  a b ", "a b"}, {"\ta ", "\ta"}, {"   ", ""}, {"x", "x"}};
  for (const auto& [given, expected] : cases) {
    const char* begin = given.data();
    const char* end = begin + given.size() - 1;
    const int length = ChartStringHandler::trim(begin, end);
    EXPECT_EQ(std::string(begin, static_cast<std::size_t>(length)), expected);
  }
}

TEST_F(Strings, LabelsVariablesByTheirLabelElseTheirName) {
  auto* dictionary =
      new Dictionary({Column("mass", "  Body mass  ", 0, {5, 8, 1}),
                      Column("sex", "   ", 0, {5, 8, 0}), Column("isle", "", 8, {1, 8, 0})});
  chartOn(dictionary);
  ChartStringHandler handler;
  handler.SetDataSource(dictionary);
  EXPECT_EQ(registry().getUTF8String(handler.VariableLabel(0)), "Body mass");
  EXPECT_EQ(registry().getUTF8String(handler.VariableLabel(1)), "sex");
  EXPECT_EQ(registry().getUTF8String(handler.VariableLabel(2)), "isle");
  EXPECT_EQ(registry().getUTF8String(handler.VariableName(0)), "mass");
  EXPECT_EQ(registry().getUTF8String(handler.Value(0, OBS{.number = 3750.26})), "3750.3");
  EXPECT_EQ(handler.Value(7, OBS{.number = host::systemMissing}), -1) << "before any check";
  EXPECT_THAT(takeReports(), IsEmpty());
  EXPECT_EQ(handler.VariableName(3), -1);
  EXPECT_THAT(takeReports(), ElementsAre("invalid variable index 3"));
}
