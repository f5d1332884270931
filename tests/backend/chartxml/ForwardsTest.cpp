#include "../support/BuilderTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

/// What holders of the registry call and no other test does, where it succeeds.
class Forwards : public BuilderTest {
protected:
  ChartXml& r = registry();
  int h = chartOn(described({Column("a", "A", 0, {5, 8, 0})}, {0}));
  int source = r.AddSource(h);
  int v = r.AddVariable(h, source, 1, true);
  int other = r.AddVariable(h, source, 1, true);
  int frame = r.AddFrame(h, 0, -1);
};

TEST_F(Forwards, PassOnWhatFormatsShow) {
  const int meta = r.AddMeta(h, v);
  EXPECT_EQ(meta, v - 1);
  EXPECT_EQ(r.SetMetaWeight(h, meta, true), meta);
  const int format = r.AddNumberFormat(h, meta);
  EXPECT_EQ(r.getVariableNumFormat(h, v), format);
  EXPECT_EQ(r.SetNumberFormatPrefix(h, format, text("[")), 0);
  EXPECT_EQ(r.SetNumberFormatSuffix(h, format, text("]")), 0);
  EXPECT_EQ(r.SetNumberFormatMaxFractionDigits(h, format, text("4")), 0);
  EXPECT_EQ(r.SetNumberFormatMinFractionDigits(h, format, 2), -1) << "which does nothing";
  EXPECT_EQ(r.SetNumberScientific(h, format, false), 0);
  EXPECT_EQ(fragment(h, meta),
            R"(<meta creator="external_datasource" weight="true"><numberFormat )"
            R"(maximumFractionDigits="4" prefix="[" scientific="never" suffix="]"/></meta>)");

  const int second = r.AddMeta(h, other);
  const int typed = r.AddNumberFormat(h, second, 3, 8, 2);
  EXPECT_EQ(fragment(h, typed), R"(<numberFormat minimumFractionDigits="2"/>)");
  EXPECT_EQ(r.AddDateFormat(h, second, 30, 9), 0);
  EXPECT_EQ(fragment(h, second),
            R"(<meta creator="external_datasource"><dateTimeFormat prefix=" WK "><dateFormat>)"
            R"(<week/><year showCentury="true"/></dateFormat><timeFormat/></dateTimeFormat>)"
            R"(</meta>)");
  const int string = r.AddStringFormat(h, second);
  EXPECT_EQ(fragment(h, string), "<stringFormat/>");
  EXPECT_EQ(fragment(h, second), R"(<meta creator="external_datasource"><stringFormat/></meta>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Forwards, PassOnElementsAndScales) {
  const int group = r.AddElementGroup(h, frame, text("g"));
  const int element = r.AddElement(h, group, 21, -1);
  r.AddStyleByPattern(h, element, v);
  r.AddStyleByColorAndPattern(h, element, other);
  r.AddFacetStyle(h, element, text("w"), text("s"));
  EXPECT_EQ(fragment(h, group),
            R"(<elementGroup id="elementGroup_g" style="elementGroup_gdefault_style">)"
            R"(<element id="element5" showCollidingLabels="true" style="default_style" )"
            R"(type="line"><facetStyle style="facetStyle_sdefault_style" when="w"/>)"
            R"(<styleBy id="styleBy6" styleCycle="styleCyclePattern" variable="variable1"/>)"
            R"(<styleBy id="styleBy7" styleCycle="styleCycleColor_styleCyclePattern" )"
            R"(variable="variable2"/></element></elementGroup>)");
  const int y = r.AddDimension(h, frame, 2, -1);
  EXPECT_EQ(r.SetDimensionUpperMapping(h, y, text("9")), y);
  r.SetDimensionScale(h, y, 116, text("2"), false);
  EXPECT_EQ(r.SetLogUnsafe(h), -1) << "also when it did its work";
  EXPECT_EQ(fragment(h, y),
            R"(<dimension facetsShareScale="true" role="y" upperMapping="9"><scale method="log">)"
            R"(<parameter name="base" value="2"/><parameter name="safe" value="false"/></scale>)"
            R"(</dimension>)");
  EXPECT_THAT(takeReports(), IsEmpty());
}

TEST_F(Forwards, PassOnWhatIsSentBesideTheDocument) {
  EXPECT_EQ(r.SetChartType(h, 2), 1);
  EXPECT_EQ(r.SetChartType(h, 0), -1);
  EXPECT_EQ(r.SetChartTemplate(h, "dark"), 0);
  EXPECT_EQ(r.CreateChartDescription(h, text("d")), 0);
  bool horizontal = false;
  whenSent = [&](const host::SentChart& chart) {
    horizontal = chart.visualization.icicleHorizontal.value_or(false);
  };
  EXPECT_EQ(r.EndChart(h), 0);
  ASSERT_EQ(sent.size(), 1U);
  EXPECT_THAT((std::vector{sent[0].chartTemplate, sent[0].description}), ElementsAre("dark", "d"));
  EXPECT_TRUE(horizontal);
}
