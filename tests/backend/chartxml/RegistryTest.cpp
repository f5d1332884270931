#include "../support/BuilderTest.h"

#include <cstdint>

#include <host/CodePages.h>
#include <host/OutputText.h>
#include <host/Settings.h>

using testing::ElementsAre;
using testing::IsEmpty;

using Registry = BuilderTest;

namespace {

Column number(const char* name) { return {name, "", 0, {5, 8, 2}}; }
void* const dictionaryItself = reinterpret_cast<void*>(std::intptr_t{-1});

} // namespace

TEST_F(Registry, GivesOutChartHandlesThatAreNotReusedUntilAllAreKilled) {
  EXPECT_EQ(registry().CreateChart(), 0);
  EXPECT_EQ(registry().KillChart(0), 0);
  EXPECT_EQ(registry().CreateChart(), 1);
  EXPECT_EQ(registry().EndChart(1), 0);
  EXPECT_EQ(registry().CreateChart(), 2);
  EXPECT_EQ(registry().KillCharts(), 0);
  EXPECT_EQ(registry().CreateChart(), 0);
  EXPECT_EQ(ChartXml::Terminate(), nullptr);
  EXPECT_EQ(registry().CreateChart(), 0);
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Registry, TellsAMissingChartFromAHandleOutOfRange) {
  registry().CreateChart();
  registry().CreateChart();
  registry().KillChart(0);
  loseChart(1);
  const int refused[] = {registry().AddSource(0), registry().AddFrame(2, 0, -1),
                         registry().AddSource(1), registry().AddX(3, 0, 0),
                         registry().EndChart(-1), registry().getHandle(7, nullptr)};
  EXPECT_THAT(refused, testing::Each(-1));
  EXPECT_EQ(registry().getChart(2), nullptr);
  EXPECT_EQ(registry().GetXmlBuffer(2), "");
  EXPECT_THAT(
      takeReports(),
      ElementsAre("chart with this handle not found 0", "chart with this handle not found 2",
                  "chart does not exist 1", "chart handle (3) out of range (0-2)",
                  "chart handle (-1) out of range (0-2)", "chart handle (7) out of range (0-2)",
                  "chart with this handle not found 2", "chart with this handle not found 2"));
}

TEST_F(Registry, AnswersSomeCallsForABadChartInTheirOwnWay) {
  EXPECT_EQ(registry().SetAxisPercent(4, 77, 0), 77);
  EXPECT_EQ(registry().CreateLogVar(4, 1), 4);
  EXPECT_EQ(registry().AllDataDoubles(4), 4);
  EXPECT_THAT(takeReports(), ElementsAre("chart handle (4) out of range (0-0)",
                                         "chart handle (4) out of range (0-0)",
                                         "chart handle (4) out of range (0-0)"));
  EXPECT_EQ(registry().KillChart(4), 0);
  EXPECT_EQ(registry().AddRow(4, 0), -1);
  EXPECT_EQ(registry().AddDataValue(4, 0, 0, 5), -1);
  EXPECT_EQ(registry().AddDoubleDataValue(4, 0, 0, 5), -1);
  EXPECT_THAT(takeReports(), IsEmpty()) << "these are silent";
}

TEST_F(Registry, ReportsThePlaceOfTheForwardingOperation) {
  host::ErrorReport seen;
  host::setErrorCallback([&](const host::ErrorReport& report) { seen = report; });
  registry().AddX(9, 0, 0);
  EXPECT_EQ(seen.source, "backend/chartxml/src/chartxml/ForwardElements.cpp");
  const unsigned line = seen.line;
  registry().AddY(9, 0, 0);
  EXPECT_NE(seen.line, line);
}

TEST_F(Registry, ConsumesAChartAlsoWhenSendingFails) {
  const int chart = registry().CreateChart();
  registry().SetProcedure(chart, "regress");
  registry().SetChartDescription(chart, "what it shows");
  sinkFails = true;
  EXPECT_EQ(registry().EndChart(chart), -1);
  EXPECT_EQ(registry().EndChart(chart), -1);
  ASSERT_EQ(sent.size(), 1U);
  EXPECT_THAT(sent[0].errors, ElementsAre("Chart XML Send Error"));
  EXPECT_THAT(takeReports(), ElementsAre("the sink is full", "chart with this handle not found 0"));

  sinkFails = false;
  const int next = registry().CreateChart();
  registry().SetProcedure(next, "regress");
  registry().SetChartDescription(next, "d");
  EXPECT_EQ(registry().EndChart(next), 0);
  EXPECT_EQ(sent[1].name, "regress");
  EXPECT_EQ(sent[1].description, "d");
}

TEST_F(Registry, SendsNothingWhileBootstrapping) {
  host::setBootstrapping(true);
  EXPECT_EQ(registry().EndChart(registry().CreateChart()), -1);
  host::setBootstrapping(false);
  EXPECT_THAT(sent, IsEmpty());
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Registry, ForgetsStringsAndDataWithTheLastChartOnlyWhenItWasNotInitialized) {
  int destroyed = 0;
  auto* run = new Dictionary({number("a")}, {0}, &destroyed);
  const int chart = chartOn(run);
  auto* itself = new Dictionary({number("a")}, {}, &destroyed);
  registry().SetDataSource(chart, dictionaryItself, itself);
  const int first = text("x");
  registry().CreateChart();
  registry().KillChart(chart);
  EXPECT_EQ(text("y"), first + 1) << "another chart is open";
  registry().KillCharts();
  EXPECT_EQ(text("z"), ChartStringHandler::firstFreeHandle);
  EXPECT_EQ(destroyed, 0) << "neither dictionary was the registry's: one lives in a "
                             "procedure's source, one came second";
  delete itself;
  delete run;

  ChartXml::Initialize();
  auto* owned = new Dictionary({number("a")}, {}, &destroyed);
  registry().SetDataSource(registry().CreateChart(), dictionaryItself, owned);
  const int kept = text("k");
  registry().KillCharts();
  EXPECT_EQ(registry().getUTF8String(kept), "k");
  EXPECT_EQ(destroyed, 2);
  ChartXml::Terminate();
  EXPECT_EQ(destroyed, 3);
}

TEST_F(Registry, KeepsTheFirstDataSourceItIsGiven) {
  auto* first = new Dictionary({number("first")});
  auto* second = new Dictionary({number("second")});
  const int chart = registry().CreateChart();
  EXPECT_EQ(registry().SetDataSource(-1, first), 0);
  EXPECT_EQ(registry().SetDataSource(chart, second), 0);
  EXPECT_EQ(registry().getUTF8String(registry().VariableName(0)), "first");
  delete second;
  EXPECT_EQ(registry().SetDataSource(5, first), -1);
  EXPECT_THAT(takeReports(), ElementsAre("chart handle (5) out of range (0-1)"));
}

TEST_F(Registry, RefusesAStaleDictionary) {
  auto* gone = new Dictionary({number("a")});
  delete gone;
  const int chart = chartOn(gone);
  EXPECT_EQ(registry().AddVariable(chart, 0, 1, true), -1);
  EXPECT_EQ(registry().EndChart(chartOn(nullptr)), 0) << "charts without data still work";
  EXPECT_THAT(takeReports(),
              ElementsAre("the dictionary is not that of an open data set", "no datasource"));
}

TEST_F(Registry, MapsTheProceduresVariableNumbersFrom1ToColumns) {
  EXPECT_EQ(registry().getVariableIndex(0), 0) << "no procedure's data source: unchanged";
  EXPECT_EQ(registry().getVariableIndex(-7), -7);
  Dictionary* dictionary = described({number("a"), number("b"), number("c")}, {2, 0});
  dictionary->variableCount = 3;
  const int chart = chartOn(dictionary);
  EXPECT_EQ(registry().getVariableIndex(1), 2);
  EXPECT_EQ(registry().getVariableIndex(2), 0);
  EXPECT_EQ(registry().getVariableIndex(3), -1) << "the list is shorter than the count";
  EXPECT_THAT(takeReports(), IsEmpty());
  EXPECT_EQ(registry().getVariableIndex(0), -1);
  EXPECT_EQ(registry().getVariableIndex(4), -1);
  EXPECT_EQ(registry().AddVariable(chart, 0, 3, true), -1);
  EXPECT_THAT(takeReports(),
              ElementsAre("variable index out of range 0 3", "variable index out of range 4 3",
                          "invalid variable index -1"));
  EXPECT_EQ(registry().GetVariableFormat(chart, 1), 5 << 16 | 8 << 8 | 2);
}

TEST_F(Registry, LabelsFromAnotherDataSourceAndComesBackToItsOwn) {
  Dictionary other({number("other1"), number("other2")}, {1, 0});
  KORVA_FortranDictionary* const address = &other;
  EXPECT_EQ(registry().VariableLabelFromDataSource(&other, 0), -1) << "no source of its own";
  chartOn(described({number("own")}, {0}));
  const int labels[] = {registry().VariableLabelFromDataSource(&other, 1),
                        registry().VariableLabelFromDataSource(nullptr, address, 1),
                        registry().VariableLabelFromDataSource(dictionaryItself, address, 1),
                        registry().VariableLabel(1)};
  const char* expected[] = {"other2", "other2", "other2", "own"};
  for (std::size_t i = 0; i < std::size(labels); ++i) {
    EXPECT_EQ(registry().getUTF8String(labels[i]), expected[i]) << i;
  }
}

TEST_F(Registry, TakesTextsAsBytesOfTheProcessCodePage) {
  const std::pair<std::string, std::string> cases[] = {
      {"a\\nb  ", "a\\nb  "},
      {"gr\xC3\xB6\xC3\x9F", "größ"},
      {"a\xFF"
       "b",
       "a\uFFFDb"},
      {std::string("a\0b", 3), std::string("a\0b", 3)},
      {"", ""}};
  for (const auto& [bytes, expected] : cases) {
    EXPECT_EQ(registry().getUTF8String(registry().String(bytes)), expected);
  }
  EXPECT_EQ(registry().translate("no key\\nat all").toUTF8(), "no key\nat all");
  EXPECT_EQ(registry().translate("E60551").toUTF8(), "Linear");

  ChartXml::Terminate();
  ASSERT_TRUE(host::setProcessCodePage("CP1252"));
  EXPECT_EQ(registry().getUTF8String(text("gr\xF6\xDF \x80")), "größ €");
  host::setProcessCodePage("UTF-8");
}

TEST_F(Registry, TranslatesIntoTheOutputLanguageWithEnglishBeside) {
  ASSERT_TRUE(host::setOutputLanguage("ja"));
  const ChartString missing = registry().translate("E60712");
  EXPECT_EQ(missing.toUTF8ForEng(), "Missing");
  EXPECT_EQ(missing.toUTF8(), "欠損");
  EXPECT_EQ(registry().translate("no such key").toUTF8(), "no such key");
  const int cell = registry().ToSK(registry().NString("E60712"));
  EXPECT_EQ(ChartTranscoder("CP932").transcode(SkCellText::text(cell)), missing.text());
  host::setOutputLanguage("en");
}

TEST_F(Registry, HandsTextsToTheOutputSystem) {
  EXPECT_EQ(SkCellText::text(registry().ToSK(17)), "title");
  EXPECT_EQ(registry().ToSK(text("")), -1);
  EXPECT_EQ(registry().ToSK(-1), -1);
  EXPECT_EQ(registry().ToSK(46), -1);
  EXPECT_THAT(takeReports(),
              ElementsAre("converting string handle to Skirl handle failed 157",
                          "string handle out of range", "String not found for handle 46",
                          "converting string handle to Skirl handle failed 46"));
}

TEST_F(Registry, ShowsAnAxisInPercent) {
  const int chart = registry().CreateChart();
  const int frame = registry().AddFrame(chart, 0, -1);
  const int axis = registry().AddAxis(chart, frame, -1, false);
  EXPECT_EQ(registry().SetAxisPercent(chart, axis, frame), axis);
  EXPECT_EQ(fragment(chart, frame),
            R"(<frame id="frame1" style="default_style"><axis id="axis2" style="default_style">)"
            R"(<transform method="percent"/></axis>)"
            R"(<numberFormat scientific="never" suffix="%"/></frame>)");
  EXPECT_EQ(registry().SetAxisPercent(chart, axis, 99), -1);
  EXPECT_EQ(registry().SetAxisPercent(chart, 99, frame), -1);
}

TEST_F(Registry, KeepsTheChartWhenAValueIsMinusOneOrItsVariableUnknown) {
  const int chart = registry().CreateChart();
  EXPECT_EQ(registry().AddDataValue(chart, 0, 0, -1), -1);
  EXPECT_EQ(registry().AddDataValue(chart, 0, 12345, 17), 0) << "unknown variables are ignored";
  EXPECT_NE(registry().getChart(chart), nullptr);
}

TEST_F(Registry, EndsWithChartsOpenAndStartsAgain) {
  for (int round = 0; round < 2; ++round) {
    ChartXml::Initialize();
    const int chart = registry().CreateChart();
    registry().AddFrame(chart, 0, text("f"));
    registry().CreateChart();
    EXPECT_EQ(ChartXml::Terminate(), nullptr);
    EXPECT_EQ(ChartXml::Terminate(), nullptr);
  }
  EXPECT_EQ(registry().CreateChart(), 0);
  EXPECT_THAT(takeReports(), IsEmpty());
}

// The program's error callback may hand control back to the procedure at any report.
TEST_F(Registry, StaysSoundWhenAReportGoesToTheCaller) {
  Dictionary other({number("other")}, {0});
  chartOn(described({number("own")}, {0}));
  host::setErrorCallback([](const host::ErrorReport&) { throw KorvaGoToCaller(); });
  KORVA_FortranDictionary* const address = &other;
  EXPECT_THROW(registry().VariableLabelFromDataSource(nullptr, address, 9), KorvaGoToCaller);
  EXPECT_EQ(registry().getUTF8String(registry().VariableLabel(1)), "own");
  sinkFails = true;
  EXPECT_THROW(registry().EndChart(0), KorvaGoToCaller);
  EXPECT_EQ(registry().KillChart(0), 0);
  host::setErrorCallback({});
  EXPECT_EQ(registry().getChart(0), nullptr) << "ended all the same";

  ChartXml::Terminate();
  ASSERT_EQ(setenv("CHARTXML_LANG", "xx", 1), 0);
  host::setOutputLanguage("");
  host::setErrorCallback([](const host::ErrorReport&) { throw KorvaGoToCaller(); });
  EXPECT_THROW(registry(), KorvaGoToCaller);
  host::setErrorCallback({});
  unsetenv("CHARTXML_LANG");
  EXPECT_EQ(registry().CreateChart(), 0);
}
