#include "../support/BuilderTest.h"

#include <functional>
#include <limits>

#include <fmt/format.h>
#include <xercesc/dom/DOM.hpp>

#include <host/Text.h>
#include <host/ZephUni.h>

using testing::ElementsAre;
using testing::IsEmpty;
using xercesc::DOMElement;

class Document : public BuilderTest {
protected:
  int handle = registry().CreateChart();
  Chart& made = chart(handle);

  DOMElement& loose(const char* name) {
    return *made.getChart()->createElement(host::utf16(name).c_str());
  }
  static std::string id(const DOMElement& element) {
    return host::utf8(element.getAttribute(u"id"));
  }
};

TEST_F(Document, NumbersNodesFrom1AndHoldsTheGraphUnder0) {
  EXPECT_EQ(made.getElement(0), made.getChart()->getDocumentElement());
  EXPECT_EQ(made.AddFrame(0, -1), 1);
  EXPECT_EQ(made.AddSource(), 2);
  EXPECT_EQ(made.getHandle(made.getElement(2)), 2);
  EXPECT_EQ(made.getHandle(&loose("x")), -1);
  EXPECT_EQ(made.getElement(3), nullptr);
  for (const int none : {-1, (1 << 30) - 1, 2'000'000'000, std::numeric_limits<int>::max()}) {
    EXPECT_EQ(made.getElement(none), nullptr);
  }
}

TEST_F(Document, LetsTheNextHandlePassTheCheckButChangesNothingForIt) {
  EXPECT_TRUE(made.validHandle(1, "parent"));
  EXPECT_FALSE(made.validHandle(2, "parent"));
  EXPECT_FALSE(made.validHandle(-1, "parent"));
  EXPECT_THAT(takeReports(), ElementsAre("parent handle (2) out of range (0-1)",
                                         "parent handle (-1) out of range (0-1)"));
  const std::string before = fragment(handle, 0);
  EXPECT_EQ(made.AddFrame(1, -1), -1);
  EXPECT_EQ(made.AddStatistic(1, 44), -1);
  EXPECT_EQ(made.AddX(1, 1), -1);
  EXPECT_EQ(made.AddAxis(1, -1, false), -1);
  EXPECT_EQ(made.SetDimensionLowerMargin(1, 17), -1);
  EXPECT_THAT(takeReports(), ElementsAre("can't add frame to anything but graph or frame - ",
                                         "can't add x to anything but element or position - "));
  EXPECT_EQ(fragment(handle, 0), before);
}

TEST_F(Document, NamesBadArgumentsByTheirNoun) {
  const int frame = made.AddFrame(0, -1);
  made.AddFrame(9, -1);
  made.AddFrame(0, -2);
  made.AddElement(9, 23, -1);
  made.AddElement(frame, 999, -1);
  made.AddDimension(frame, 0, -1);
  made.AddDimension(frame, 8, -1);
  made.AddDimension(frame, 7, 9);
  made.AddMajorTicks(frame, -1, false, -1, 999, false, -1);
  made.CreateChartDescription(-1);
  made.AddDescription(9, 17);
  made.CopyAttributes(9, 0);
  made.CopyAttributes(0, 9);
  EXPECT_FALSE(made.validVariableList(0));
  EXPECT_FALSE(made.validVariable(0));
  made.AddVariable(0, 0, true);
  EXPECT_THAT(takeReports(),
              ElementsAre("parent handle (9) out of range (0-2)", "suffix handle out of range",
                          "frame or elementGroup handle (9) out of range (0-2)",
                          "type handle out of range", "invalid role 0", "invalid role 8",
                          "domain handle (9) out of range (0-2)", "labelAngle handle out of range",
                          "description handle out of range", "parent handle (9) out of range (0-2)",
                          "fromElement handle (9) out of range (0-2)",
                          "toElement handle (9) out of range (0-2)",
                          "variable list handle out of range 0", "no datasource",
                          "invalid variable index 0", "no datasource"));
}

TEST_F(Document, ReportsThePlaceOfTheRefusedCall) {
  host::ErrorReport seen;
  host::setErrorCallback([&](const host::ErrorReport& report) { seen = report; });
  made.AddFrame(99, -1);
  EXPECT_EQ(seen.source, "backend/chartxml/src/chart/Frames.cpp");
  const unsigned line = seen.line;
  made.SetFrameClipping(99, true);
  EXPECT_GT(seen.line, line);
}

TEST_F(Document, GivesIdsAndStylesBySuffixOrNumber) {
  made.AddFrame(0, text("data"));
  made.AddFrame(0, -1);
  made.AddFrame(0, text("data"));
  EXPECT_THAT(takeReports(), ElementsAre("id has already been used - frame_data"));
  const int axis = made.AddAxis(1, text("axisx_1"), true);
  const int source = made.AddSource();
  EXPECT_EQ(fragment(handle, 0),
            R"(<graph><source id="source0"><otherAccess type="object"/></source>)"
            R"(<frame id="frame_data" style="frame_datadefault_style">)"
            R"(<axis baselineStyle="axis_axisx_1baselineStyle" id="axis_axisx_1" )"
            R"(opposite="true" style="axis_axisx_1default_style"/></frame>)"
            R"(<frame id="frame2" style="default_style"/>)"
            R"(<frame id="frame3" style="default_style"/></graph>)");
  EXPECT_EQ(axis, 4);
  EXPECT_EQ(source, 5);
  EXPECT_EQ(made.AddStyles(), 0);
  const std::string finished = fragment(handle, 0);
  EXPECT_EQ(finished.substr(finished.find(R"(<style id="container">)")),
            R"(<style id="container"><style id="frame_datadefault_style"/>)"
            R"(<style id="default_style"/><style id="axis_axisx_1default_style"/>)"
            R"(<style id="axis_axisx_1baselineStyle"/></style>)"
            R"(<styleCycle id="styleCycleDefault"><cycle><style id="style_styleCycleDefault"/>)"
            R"(</cycle></styleCycle><styleCycle id="styleCycleRepository"><cycle>)"
            R"(<style id="style_styleCycleRepository"/></cycle></styleCycle></graph>)");
}

TEST_F(Document, RefusesAnIdTwiceUnlessAStringHandleFallsBack) {
  DOMElement& first = loose("legend");
  DOMElement& second = loose("legend");
  EXPECT_EQ(made.AddIDAttribute(first, u"mine", false), 1);
  EXPECT_EQ(made.AddIDAttribute(second, u"mine", false), -1);
  EXPECT_EQ(made.AddIDAttribute(second, text("a")), 2);
  EXPECT_EQ(id(second), "legend_a");
  EXPECT_EQ(made.AddStyleCycle(u"mine", nullptr), nullptr);
  EXPECT_EQ(made.AddStyle(first, u"mine"), -1) << "silently";
  EXPECT_THAT(takeReports(),
              ElementsAre("id has already been used - mine", "id has already been used - mine"));
}

TEST_F(Document, SharesTicksStylesWithTheAxisSoThatASecondSetFindsThemTaken) {
  const int frame = made.AddFrame(0, -1);
  const int axis = made.AddAxis(frame, text("a"), false);
  made.AddMajorTicks(axis, -1, true, -1, -1, false, -1);
  takeReports();
  const int again = made.AddMajorTicks(axis, 27, false, 28, 29, true, 32);
  EXPECT_EQ(fragment(handle, axis),
            R"(<axis baselineStyle="axis_abaselineStyle" id="axis_a" style="axis_adefault_style">)"
            R"(<majorTicks markStyle="axis_amarkStyle" stagger="false" )"
            R"(tickLabelStyle="axis_atickLabelStyle">)"
            R"(<gridLines style="majorTicks_axis_agridLineStyle"/></majorTicks>)"
            R"(<majorTicks delta="inside" labelAngle="positive" length="negative" )"
            R"(position="center" stagger="true"/></axis>)");
  EXPECT_EQ(again, 5) << "grid lines come before their ticks";
  EXPECT_THAT(takeReports(), ElementsAre("id has already been used - axis_amarkStyle",
                                         "id has already been used - axis_atickLabelStyle"));
}

TEST_F(Document, KeepsChildrenInOneOrderWhateverTheOrderOfCalls) {
  Dictionary* dictionary = described({Column("v", "", 0, {0, 8, 0})}, {0});
  registry().SetDataSource(handle, nullptr, dictionary);
  const int source = made.AddSource();
  const int v = made.AddVariable(source, 0, true);
  const int element = made.AddElement(made.AddFrame(0, -1), 21, -1);
  made.AddColor(element, v);
  made.AddStyleBy(element, v);
  const int position = made.AddPosition(element);
  made.AddStyleByColorAndPattern(element, v);
  for (auto add :
       {&Chart::AddZ, &Chart::AddR, &Chart::AddTheta, &Chart::AddPhi, &Chart::AddY, &Chart::AddX}) {
    std::invoke(add, made, position, v);
  }
  made.AddStatistic(position, 44);
  EXPECT_EQ(
      fragment(handle, element),
      R"(<element id="element3" showCollidingLabels="true" style="default_style" type="line">)"
      R"(<position><statistic method="histogram"><parameter name="facetsShareSpecification" )"
      R"(value="true"/></statistic><theta variable="variable1"/><r variable="variable1"/>)"
      R"(<x variable="variable1"/><y variable="variable1"/><z variable="variable1"/>)"
      R"(<phi variable="variable1"/></position>)"
      R"(<styleBy id="styleBy4" styleCycle="styleCycleDefault" variable="variable1"/>)"
      R"(<styleBy id="styleBy5" styleCycle="styleCycleColor_styleCyclePattern" )"
      R"(variable="variable1"/><color variable="variable1"/></element>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}

// The shared style collects what every point element without a suffix adds.
TEST_F(Document, FillsPointStylesAndHollowsThemByStyle) {
  const int frame = made.AddFrame(0, -1);
  const int source = made.AddSource();
  const int element = made.AddElement(frame, 23, text("p"));
  made.AddElement(frame, 23, -1);
  made.AddElement(frame, 23, -1);
  made.AddStyleBy(element, source);
  made.AddStyles();
  const std::string all = fragment(handle, 0);
  EXPECT_THAT(all, testing::HasSubstr(R"(<style id="element_pdefault_style" )"
                                      R"(value="fill-pattern:0;fill:transparent"/>)"));
  EXPECT_THAT(all, testing::HasSubstr(R"(<style id="default_style" )"
                                      R"(value="fill-pattern:0;fill-pattern:0"/>)"));
}

TEST_F(Document, LabelsTheInnerFrameOfASkeleton) {
  const int outer = made.AddFrame(0, text("graph_1"));
  const int inner = made.AddFrame(outer, text("data_1"));
  EXPECT_EQ(fragment(handle, inner),
            R"(<frame id="frame_data_1" style="frame_data_1default_style"><facetLabeling>)"
            R"(<facetLabel cellStyle="facetLabel_data_1default_style" id="facetLabel_data_1" )"
            R"(level="0"/></facetLabeling></frame>)");
  EXPECT_EQ(made.AddFacetLabeling(outer), inner + 1) << "found anywhere below";
  EXPECT_EQ(made.AddFrame(0, text("data_1 ")), inner + 3) << "no other suffix adds one";
}

TEST_F(Document, ReplacesALabelAndFreesItsId) {
  const int frame = made.AddFrame(0, -1);
  made.AddLabel(frame, 17, text("a\\nb"));
  const int second = made.AddLabel(frame, 17, text("c"));
  EXPECT_EQ(fragment(handle, frame),
            R"(<frame id="frame1" style="default_style"><label id="label_title" )"
            R"(style="label_titledefault_style">c</label></frame>)");
  EXPECT_EQ(fragment(handle, second - 1),
            "<label id=\"label_title\" style=\"label_titledefault_style\">a\nb</label>")
      << "its node lives as long as its handle";
  made.AddLabel(second, 15, text("below"));
  made.AddLabel(frame, 17, text("d"));
  made.AddLabel(made.AddFrame(0, -1), 15, text("e"));
  EXPECT_THAT(takeReports(), IsEmpty()) << "the id of what stood below is free too";
}

TEST_F(Document, DrawsFunctionsAsGuides) {
  const int frame = made.AddFrame(0, -1);
  EXPECT_EQ(made.AddYFunctionOfX(frame, 999, 1), -1);
  EXPECT_EQ(made.AddYFunctionOfX(0, 17, 1), -1);
  const int guide = made.AddYFunctionOfX(frame, text("2 * x"), 1);
  EXPECT_EQ(fragment(handle, guide),
            R"(<guide id="guide_yFunctionOfX_1" style="guide_yFunctionOfX_1default_style" )"
            R"(type="function"><parameter name="y" value="2 * x"/>)"
            R"(<parameter name="numPoints" value="1000"/></guide>)");
}

TEST_F(Document, ReplacesForbiddenCharactersOnceTheyEnterTheDocument) {
  ChartString bad;
  bad.assign(std::u16string_view(u"a\u0001b\xD800\xD83D\xDE00\n", 7));
  EXPECT_FALSE(Chart::isValidXMLString(bad));
  ChartString good;
  good.assign(u"\xD83D\xDE00\t");
  EXPECT_TRUE(Chart::isValidXMLString(good));
  EXPECT_TRUE(Chart::isValidXMLString(ChartString()));

  const int frame = made.AddFrame(0, text("a\x01"));
  made.AddLabel(frame, -1, text("b\x02"));
  EXPECT_EQ(fragment(handle, frame),
            "<frame id=\"frame_a\uFFFD\" style=\"frame_a\uFFFD"
            "default_style\">"
            "<label id=\"label2\" style=\"default_style\">b\uFFFD</label></frame>");
  EXPECT_THAT(takeReports(),
              ElementsAre("characters that XML does not allow were replaced in the texts of "
                          "chart 0 - a\uFFFD"));
}

TEST_F(Document, SetsWhatIsSentBesideTheDocument) {
  EXPECT_EQ(made.SetChartType(3), -1);
  EXPECT_EQ(made.SetChartType(2), 1);
  EXPECT_EQ(made.SetChartTemplate(""), -1);
  EXPECT_EQ(made.SetChartTemplate("dark"), 0);
  EXPECT_EQ(made.SetNumberFormatMinFractionDigits(1, 1), -1);
  EXPECT_EQ(made.CreateChartDescription(text("")), -1);
  EXPECT_EQ(made.CreateChartDescription(text("d")), 0);
  made.AddGraphName(nullptr);
  EXPECT_EQ(fragment(handle, 0), "<graph/>");
  made.AddGraphName(u"n");
  const int description = made.AddDescription(0, 17);
  EXPECT_EQ(made.CopyAttributes(description, 0), 0);
  EXPECT_EQ(fragment(handle, 0), R"(<graph name="title"><description name="title"/></graph>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}
