#include "../support/BuilderTest.h"

#include <limits>

#include <fmt/format.h>
#include <xercesc/dom/DOM.hpp>

#include <host/Missing.h>
#include <host/Text.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Elements : public BuilderTest {
protected:
  int handle = chartOn(described({Column("v", "", 0, {0, 8, 0})}, {0}));
  Chart& c = chart(handle);
  int v = c.AddVariable(c.AddSource(), 0, true);
  int frame = c.AddFrame(0, -1);
};

TEST_F(Elements, KeepAestheticsInOneOrderWhateverTheOrderOfCalls) {
  const int element = c.AddElement(frame, 21, text("e"));
  c.AddSplit(element, v);
  const int labeling = c.AddLabelingSuffix(element, v, text("l"));
  const int inner = c.AddSize(labeling, v);
  c.AddNumberFormat(labeling);
  const int second = c.AddSize(labeling, v);
  c.AddColor(element, v);
  c.AddStyleBy(element, v);
  c.AddX(c.AddPosition(element), v);
  c.AddSize(element, v);
  c.AddLabeling(element, frame);
  EXPECT_EQ(c.SetSizeLow(inner, text("1")), 0);
  EXPECT_EQ(c.SetSizeHigh(second, text("9")), 0);
  EXPECT_EQ(c.SetElementDot(element, 156), element);
  EXPECT_EQ(c.SetElementPositionModifier(element, 88), element);
  EXPECT_EQ(
      fragment(handle, element),
      R"(<element dot="dot" id="element_e" positionModifier="dodge" showCollidingLabels="true" )"
      R"(style="element_edefault_style" type="line"><position><x variable="variable1"/></position>)"
      R"(<styleBy id="styleBy4" styleCycle="styleCycleDefault" variable="variable1"/>)"
      R"(<color variable="variable1"/><labeling style="labeling_ldefault_style" )"
      R"(variable="variable1"><size low="1" variable="variable1"/>)"
      R"(<size high="9" variable="variable1"/><numberFormat/></labeling>)"
      R"(<labeling style="labeling_default_style" variable="frame2"/>)"
      R"(<split variable="variable1"/><size variable="variable1"/></element>)");
  EXPECT_THAT(fragment(handle, v), HasSubstr(R"(description="labeling")"));
  EXPECT_THAT(fragment(handle, frame), HasSubstr(R"(<meta description="labeling"/>)"))
      << "any node serves as the variable";
  EXPECT_EQ(c.AddStyles(), 0);
  EXPECT_THAT(fragment(handle, 0), HasSubstr(R"(<style id="labeling_ldefault_style"/>)"));
  EXPECT_THAT(fragment(handle, 0), HasSubstr(R"(<style id="labeling_default_style"/>)"));
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Elements, AreStackedByTheirPosition) {
  const int element = c.AddElement(frame, 21, -1);
  const int position = c.AddPosition(element);
  EXPECT_EQ(c.AddStack(position, true), position);
  EXPECT_THAT(fragment(handle, element), HasSubstr(R"(positionModifier="stack")"));
  EXPECT_EQ(c.AddStack(position, false), position);
  EXPECT_THAT(fragment(handle, element), HasSubstr(R"(positionModifier="none")"));
}

TEST_F(Elements, HaveTheirStyleValuesWhenTheDocumentIsRead) {
  const int element = c.AddElement(frame, 23, text("e"));
  c.AddStyleBy(element, v);
  const auto* style = registry().getChart(handle)->getElementById(u"element_edefault_style");
  ASSERT_NE(style, nullptr);
  EXPECT_EQ(host::utf8(style->getAttribute(u"value")), "fill-pattern:0;fill:transparent");
}

TEST_F(Elements, AreBinnedInOneCall) {
  const int before = text("last");
  const int element = c.AddBinnedElement(frame, 23, text("b"), v, v);
  EXPECT_EQ(text("next"), before + 10) << "eight words and the suffix";
  EXPECT_EQ(
      fragment(handle, element),
      R"(<element id="element_b" labelCollisionHandling="normal" showCollidingLabels="true" )"
      R"(style="element_bdefault_style" type="point"><position><statistic method="bin">)"
      R"(<parameter name="location" value="grid"/><parameter name="grid" value="hex"/></statistic>)"
      R"(<x variable="variable1"/><y variable="variable1"/></position>)"
      R"(<size high="binhighval" low="binlowval" variable="variable1">)"
      R"(<statistic method="count"/></size></element>)");
  EXPECT_EQ(c.AddBinnedElement(frame, 23, -1, v, frame), -1);
  EXPECT_THAT(fragment(handle, element + 9),
              HasSubstr(R"(</statistic><x variable="variable1"/></position></element>)"))
      << "what was made before the step that failed stays";
  const int last = c.AddFrame(0, -1);
  EXPECT_EQ(c.AddBinnedElement(frame, 23, -1, frame, v), -1);
  EXPECT_THAT(
      fragment(handle, last + 1),
      HasSubstr(R"(<parameter name="grid" value="hex"/></statistic></position></element>)"));
  EXPECT_EQ(c.AddBinnedElement(v, 23, -1, v, v), -1);
  EXPECT_EQ(c.AddFrame(0, -1), last + 6) << "on another parent nothing is made";
  EXPECT_THAT(takeReports(),
              ElementsAre("y requires a variable id reference frame",
                          "x requires a variable id reference frame",
                          "can't add element to anything but frame or elementGroup - variable"));
}

TEST_F(Elements, TellWhichSummaryOfAVariableIsShown) {
  followsGrammar = false; // a description is made by hand
  const char* names[] = {"customStatistic",
                         nullptr,
                         "numberOfCases",
                         nullptr,
                         "minimumValue",
                         "maximumValue",
                         "validN",
                         "sumOfValues",
                         "cumulativeSum",
                         "meanOfValues",
                         "standardDeviation",
                         "variance",
                         "medianOfValues",
                         "modeOfValues",
                         "percentageOfCases",
                         "cumulativePercentageOfCases",
                         "numberOfCases",
                         "cumulativeNumberOfCases",
                         "percentile;10",
                         "percentageBelow;10",
                         "percentageAbove;10",
                         "numberBelow;10",
                         "numberAbove;10",
                         "percentageInside;10;0.3333333333333333",
                         "numberInside;10;0.3333333333333333",
                         nullptr,
                         "gMedian;10",
                         "gPtile;10",
                         nullptr};
  const auto set = [&](int node, int code) {
    return c.SetSummaryFunction(node, code, 10, 1.0 / 3);
  };
  for (int code = -1; code <= 27; ++code) {
    const char* expected = names[code + 1];
    const int copy = c.CopyVariable(v);
    EXPECT_EQ(set(copy, code), expected ? code : -1);
    const std::string meta = expected
                                 ? fmt::format(R"(<meta description="{}"/></variable>)", expected)
                                 : "<meta/></variable>";
    EXPECT_THAT(fragment(handle, copy), testing::EndsWith(meta)) << code;
    if (!expected) continue;
    EXPECT_EQ(set(copy, 24), 24) << "another one is noted already, whatever the code";
    EXPECT_THAT(fragment(handle, copy), testing::EndsWith(meta)) << code;
  }
  for (const int code : {-2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    EXPECT_EQ(set(c.CopyVariable(v), code), -1);
  const int marked = c.CopyVariable(v);
  set(marked, 24);
  c.getElement(marked)->getFirstElementChild()->setAttribute(u"description", u"31");
  EXPECT_EQ(set(marked, 8), 8);
  EXPECT_THAT(fragment(handle, marked), HasSubstr(R"(description="31meanOfValues")"));
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Elements, GetOneBoxInFrontOfTheirParts) {
  xercesc::DOMElement& node = *c.getElement(frame);
  c.AddElement(frame, 21, -1);
  c.AddLocation(node, u"%", 0, 0.5, 100, 1e300);
  c.AddLocation(node, u"px", 1, 1, 1, 1);
  EXPECT_EQ(fragment(handle, frame),
            R"(<frame id="frame2" style="default_style">)"
            R"(<location bottom="1e+300%" left="0%" right="100%" top="0.5%"/>)"
            R"(<element id="element3" showCollidingLabels="true" style="default_style" )"
            R"(type="line"/></frame>)");
  const int bare = c.AddFrame(0, -1);
  c.AddLocation(*c.getElement(bare), nullptr, 1, 2, 3, 4);
  EXPECT_EQ(fragment(handle, bare), R"(<frame id="frame4" style="default_style">)"
                                    R"(<location bottom="4" left="1" right="3" top="2"/></frame>)");
}

// What no procedure calls, but holders of the registry do.
TEST_F(Elements, AreReachedThroughTheRegistry) {
  ChartXml& r = registry();
  const int element = r.AddElement(handle, frame, 21, -1);
  const int position = r.AddPosition(handle, element);
  EXPECT_EQ(r.AddStack(handle, position, true), position);
  r.AddPhi(handle, position, r.CopyVariable(handle, v));
  r.AddR(handle, position, v);
  const int size = r.AddSize(handle, element, v);
  EXPECT_EQ(r.SetSizeLow(handle, size, text("1")), 0);
  EXPECT_EQ(r.SetSizeHigh(handle, size, text("2")), 0);
  EXPECT_EQ(fragment(handle, element),
            R"(<element id="element3" positionModifier="stack" showCollidingLabels="true" )"
            R"(style="default_style" type="line"><position><r variable="variable1"/>)"
            R"(<phi variable="variable4"/></position><size high="2" low="1" )"
            R"(variable="variable1"/></element>)");
}
