#include <gtest/gtest.h>

#include <host/ChartError.h>
#include <host/OutputText.h>

#include "OutputTest.h"

namespace {

std::string shown(const std::vector<CTFormatType>& formats) {
  std::string text;
  for (const CTFormatType& format : formats) {
    text += format.kind + "(";
    for (const auto& [name, value] : format.attributes)
      text.append(name).append("=").append(value).append(",");
    text += shown(format.parts) + ")";
  }
  return text;
}

TEST(XDocument, reads_the_variables_of_the_graph_with_all_that_tells_how_they_are_shown) {
  const std::string xml = R"(<?xml version="1.0" encoding="UTF-8"?>
    <graph name="Regression">
      <variable id="variable3" sourceName="V3" source="source0" categorical="false"
                label="Body&#10;mass" shortLabel="mäss">
        <meta creator="external_datasource" description="mean;12.5"><dateTimeFormat prefix=" WK ">
          <dateFormat><week/><year showCentury="true"/></dateFormat><timeFormat/>
        </dateTimeFormat></meta>
        <relabel from="1" to="&#xE9;ins"/><relabel from="2" to="zwei"/>
      </variable>
      <frame><variable id="inner"/><meta description="of no variable"/></frame>
      <variable id="variable4" categorical="true"/>
    </graph>)";
  XDocument document(xml, false, true);
  const auto& variables = document.getExternalGraph()->getImplementation().getSourceVariables();
  ASSERT_EQ(variables.size(), 2U);
  const CTVariableType& first = variables[0];
  EXPECT_EQ((std::vector<std::string_view>{first.id(), first.sourceName(), first.source(),
                                           first.label(), first.shortLabel()}),
            (std::vector<std::string_view>{"variable3", "V3", "source0", "Body\nmass", "mäss"}));
  EXPECT_EQ(first.getDescription(), "mean;12.5");
  EXPECT_FALSE(first.isCategorical());
  EXPECT_EQ(shown(first.formats()),
            "dateTimeFormat(prefix= WK ,dateFormat(week()year(showCentury=true,))timeFormat())");
  EXPECT_EQ(first.categories(), (std::vector<std::pair<std::string_view, std::string_view>>{
                                    {"1", "éins"}, {"2", "zwei"}}));
  EXPECT_EQ(variables[1].id(), "variable4");
  EXPECT_TRUE(variables[1].isCategorical());
  EXPECT_TRUE(variables[1].formats().empty() && variables[1].categories().empty());
  EXPECT_EQ(variables[1].source(), "");
  EXPECT_EQ(variables[1].getDescription(), "");
}

TEST(XDocument, refuses_what_is_no_chart_document_with_line_and_column) {
  const std::pair<std::string, std::string> cases[] = {
      {"", "line 1, column 1: invalid document structure"},
      {"<graph>\n  <frame>\n</graph>", "line 3, column 3: expected end of tag 'frame'"},
      {"<graph a='\x01'/>", "line 1, column 12: invalid character 0x1 in attribute value 'a'"},
      {"<graph a='\xC3(      '/>",
       "line 1, column 1: invalid byte '(' at position 2 of a 2-byte sequence"},
      {"<graph>&other;</graph>", "line 1, column 15: entity 'other' not found"},
      {"<!DOCTYPE graph SYSTEM 'file:///etc/passwd'>\n<graph/>",
       "line 1, column 44: a document type declaration is not allowed"},
      {"<!DOCTYPE graph [<!ENTITY a '&a;'>]><graph>&a;</graph>",
       "line 1, column 17: a document type declaration is not allowed"},
  };
  for (const auto& [xml, message] : cases)
    EXPECT_EQ(refusalOf([&] { XDocument(xml, false, true); }),
              "can't read the chart document: " + message)
        << xml;
}

/// Takes what it is sent, or throws what it is told.
class TestSink final : public host::ChartSink {
public:
  explicit TestSink(std::function<void(const std::string&)> take) : take_(std::move(take)) {}
  void send(const host::SentChart& chart) override {
    take_(chart.name + "|" + chart.xml + "|" + chart.description + "|" + chart.splitHeader + "|" +
          chart.chartTemplate + "|" + chart.language);
  }
  void noteError(const std::string& text) override { take_(text); }

private:
  std::function<void(const std::string&)> take_;
};

class Sending : public OutputTest {
protected:
  static bool send() {
    const std::string xml = "<graph name='n'/>";
    XDocument document(xml, false, true);
    document.SetDescription(ChartString(u"Größe"));
    document.SetSplitHeader(ChartString(u"sex: male"));
    document.SetChartTemplate("dark");
    return document.SendChart(true, false, false);
  }
};

TEST_F(Sending, hands_the_chart_to_the_sink) {
  std::string taken;
  host::setChartSink(std::make_unique<TestSink>([&](const std::string& text) { taken = text; }));
  EXPECT_TRUE(send());
  EXPECT_EQ(taken, "n|<graph name='n'/>|Größe|sex: male|dark|en");
  SkError(SkString("Chart XML Send Error", 1), SkErrorShow(2), SkErrorLevel(3));
  EXPECT_EQ(taken, "Chart XML Send Error");
  EXPECT_EQ(reports, std::vector<std::string>{});
}

TEST_F(Sending, reports_what_the_sink_refuses) {
  host::setChartSink(std::make_unique<TestSink>(
      [](const std::string&) { throw ChartException("no room", "sink.cpp", 7); }));
  EXPECT_FALSE(send());
  SkError(SkString("lost", 1), SkErrorShow(2), SkErrorLevel(3));
  EXPECT_EQ(reports, (std::vector<std::string>{
                         "no room", "the output's error list can't take \"lost\": no room"}));
}

TEST_F(Sending, lets_other_exceptions_pass) {
  host::setChartSink(
      std::make_unique<TestSink>([](const std::string&) { throw KorvaGoToCaller(); }));
  EXPECT_THROW(send(), KorvaGoToCaller);
  EXPECT_EQ(reports, std::vector<std::string>{});
}

} // namespace
