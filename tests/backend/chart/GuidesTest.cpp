#include "../support/BuilderTest.h"

#include <limits>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Guides : public BuilderTest {
protected:
  int handle = registry().CreateChart();
  Chart& c = chart(handle);
  int frame = c.AddFrame(0, -1);
};

TEST_F(Guides, ShowAnAxisWithTicksAndGridLines) {
  const int x = c.AddDimension(frame, 1, -1);
  const int axis = c.AddAxis(x, text("a"), true);
  const int minor = c.AddMinorTicks(axis, 26, true, 27, text("4"));
  const int major = c.AddMajorTicks(axis, 27, true, 28, text("45"), true, text("10"));
  c.AddTransform(axis, text("percent"));
  EXPECT_EQ(minor, axis + 2);
  EXPECT_EQ(major, minor + 2);
  EXPECT_EQ(fragment(handle, x),
            R"(<dimension facetsShareScale="true" role="x"><axis )"
            R"(baselineStyle="axis_abaselineStyle" combineAxisLabels="true" id="axis_a" )"
            R"(opposite="true" style="axis_adefault_style"><majorTicks delta="10" )"
            R"(labelAngle="45" length="negative" position="center" stagger="true" )"
            R"(tickLabelStyle="axis_atickLabelStyle">)"
            R"(<gridLines style="majorTicks_axis_agridLineStyle"/></majorTicks><minorTicks )"
            R"(length="center" markStyle="axis_amarkStyle" number="4" position="auto">)"
            R"(<gridLines style="axis_amajorTicksgridLineStyle"/></minorTicks>)"
            R"(<transform method="percent"/></axis></dimension>)");
  EXPECT_THAT(takeReports(), ElementsAre("id has already been used - axis_amarkStyle"))
      << "the first ticks of an axis take its mark style";
  const int second = c.AddAxis(frame, text("b"), false);
  c.AddMajorTicks(second, -1, false, -1, -1, false, -1);
  c.AddMinorTicks(second, -1, false, -1, -1);
  EXPECT_EQ(fragment(handle, second),
            R"(<axis baselineStyle="axis_bbaselineStyle" id="axis_b" style="axis_bdefault_style">)"
            R"(<majorTicks markStyle="axis_bmarkStyle" stagger="false" )"
            R"(tickLabelStyle="axis_btickLabelStyle"/><minorTicks/></axis>)");
  EXPECT_THAT(takeReports(), ElementsAre("id has already been used - axis_bmarkStyle"));
  EXPECT_EQ(fragment(handle, c.AddMinorTicks(c.AddAxis(frame, -1, false), -1, false, -1, -1)),
            R"(<minorTicks markStyle="axis4markStyle"/>)");
  c.AddStyles();
  EXPECT_THAT(fragment(handle, 0), HasSubstr(R"(<style id="axis_amajorTicksgridLineStyle"/>)"
                                             R"(<style id="axis_amarkStyle"/>)"
                                             R"(<style id="majorTicks_axis_agridLineStyle"/>)"
                                             R"(<style id="axis_atickLabelStyle"/>)"));
}

TEST_F(Guides, DrawReferenceLinesInStylesOfTheirRole) {
  const std::tuple<int, int, const char*> cases[] = {
      {1, 7,
       R"(<guide id="guide_referenceLine_107" style="guide_referenceLine_107default_style" )"
       R"(type="line"><parameter name="x" value="title"/></guide>)"},
      {2, 0,
       R"(<guide id="guide_referenceLine_200" style="guide_referenceLine_200default_style" )"
       R"(type="line"><parameter name="y" value="title"/></guide>)"},
      {2, -1,
       R"(<guide id="guide4" style="default_style" type="line">)"
       R"(<parameter name="y" value="title"/></guide>)"},
      {3, 1,
       R"(<guide id="guide_referenceLine_301" style="guide_referenceLine_301default_style" )"
       R"(type="line"/>)"}};
  for (const auto& [role, styleIndex, expected] : cases) {
    EXPECT_EQ(fragment(handle, c.AddReferenceLine(frame, role, 17, styleIndex)), expected);
  }
  EXPECT_THAT(takeReports(), IsEmpty());
  const std::string before = fragment(handle, 0);
  EXPECT_EQ(c.AddReferenceLine(frame, 2, 17, std::numeric_limits<int>::max()), -1);
  EXPECT_EQ(c.AddReferenceLine(frame, -1, 17, 0), -1);
  EXPECT_THAT(takeReports(), ElementsAre("negative handles are not allowed -2147483449",
                                         "negative handles are not allowed -100"));
  EXPECT_EQ(fragment(handle, 0), before);
}

TEST_F(Guides, ExplainElementsInLegends) {
  const int element = c.AddElement(frame, 21, text("e"));
  const int styleBy = c.AddStyleBy(element, frame);
  const int legend = c.AddLegend(frame, text("l"));
  c.AddLegendTarget(legend, element, text("t"), 36);
  c.AddLegendTarget(legend, element, -1, -1);
  c.AddLegendTargetEx(legend, element, styleBy, text("u"));
  c.AddLegendTargetEx(legend, element, styleBy, -1);
  EXPECT_EQ(fragment(handle, legend),
            R"(<legend id="legend_l" style="legend_ldefault_style">)"
            R"(<legendTarget aesthetic="styleBy" element="element_e" id="legendTarget_t"/>)"
            R"(<legendTarget element="element_e" id="legendTarget6"/>)"
            R"(<legendTarget aesthetic="styleBy3" element="element_e" id="legendTarget_u"/>)"
            R"(<legendTarget aesthetic="styleBy3" element="element_e" id="legendTarget8"/>)"
            R"(</legend>)");
  EXPECT_EQ(fragment(handle, c.AddLegend(element, -1)),
            R"(<legend id="legend9" style="default_style"/>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Guides, SayWhatHappensToLabelsThatCollide) {
  const int element = c.AddElement(frame, 23, -1);
  EXPECT_EQ(c.SetDisplayOverlappingLabels(element, false), element);
  EXPECT_EQ(c.SetLabelCollisionHandling(element, 86), element);
  EXPECT_EQ(c.SetDisplayOverlappingLabels(frame, true), frame) << "any node";
  EXPECT_EQ(fragment(handle, frame),
            R"(<frame id="frame1" showCollidingLabels="true" style="default_style"><element )"
            R"(id="element2" labelCollisionHandling="none" showCollidingLabels="false" )"
            R"(style="default_style" type="point"/></frame>)");
}
