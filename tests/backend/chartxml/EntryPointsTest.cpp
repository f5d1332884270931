#include "../support/BuilderTest.h"

#include <cstdint>

#include <chartxml/EntryPoints.h>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// An integer argument: its address lives as long as the full expression.
struct Int {
  Int(std::int64_t given) : value(given) {}
  operator const std::int64_t*() const { return &value; }
  std::int64_t value;
};

} // namespace

class EntryPoints : public BuilderTest {
protected:
  std::int64_t create() {
    return cx_createchartex_(nullptr, nullptr, "proc", Int(4), &chartOut, &source, &graph, &data);
  }
  std::int64_t chartOut = -9, source = -9, graph = -9, data = -9;
};

TEST_F(EntryPoints, BuildTheChartSkeleton) {
  EXPECT_EQ(create(), 0);
  EXPECT_THAT((std::vector{chartOut, source, graph, data}), ElementsAre(0, 1, 2, 3));
  EXPECT_EQ(fragment(0, 0),
            R"(<graph name="proc"><source id="source0"><otherAccess type="object"/></source>)"
            R"(<frame clip="true" id="frame_graph_1" style="frame_graph_1default_style">)"
            R"(<frame clip="false" id="frame_data_1" style="frame_data_1default_style">)"
            R"(<facetLabeling><facetLabel cellStyle="facetLabel_data_1default_style" )"
            R"(id="facetLabel_data_1" level="0"/></facetLabeling></frame></frame></graph>)");
  std::int64_t pie = 0;
  EXPECT_EQ(cx_createpiechart_(nullptr, nullptr, "proc", Int(4), &chartOut, &source, &graph, &pie),
            1);
  EXPECT_THAT(fragment(1, 2), HasSubstr(R"(<frame id="frame_graph_1" style=)"));
  EXPECT_THAT(fragment(1, static_cast<int>(pie)),
              HasSubstr(R"(<frame clip="true" id="frame_pie_1")"));
}

TEST_F(EntryPoints, BuildDimensionsWithAxes) {
  create();
  std::int64_t style = 0, axis = 0;
  const std::int64_t x =
      cx_adddimensionaxis_(Int(0), Int(data), Int(1), Int(-1), Int(1), &style, &axis,
                           Int(text("9%")), Int(-1), Int(-1), Int(text("3")));
  EXPECT_EQ(fragment(0, static_cast<int>(x)),
            R"(<dimension facetsShareScale="true" lowerMapping="3" role="x" upperMargin="9%">)"
            R"(<axis baselineStyle="axis_axisx_1baselineStyle" combineAxisLabels="true" )"
            R"(id="axis_axisx_1" opposite="true" style="axis_axisx_1default_style">)"
            R"(<majorTicks markStyle="axis_axisx_1markStyle" stagger="false" )"
            R"(tickLabelStyle="axis_axisx_1tickLabelStyle"/></axis></dimension>)");
  const std::string before = fragment(0, 0);
  style = axis = -9;
  for (const std::int64_t index : {std::int64_t{0}, std::int64_t{4}, (std::int64_t{1} << 32) + 1}) {
    EXPECT_EQ(cx_adddimensionaxis_(Int(0), Int(data), Int(index), Int(-1), Int(0), &style, &axis,
                                   Int(-1), Int(-1), Int(-1), Int(-1)),
              -1);
  }
  EXPECT_EQ(style, -9) << "all 64 bits of the index count, and nothing is touched";
  EXPECT_EQ(fragment(0, 0), before);
  EXPECT_THAT(takeReports(), IsEmpty());

  std::int64_t xs = 0, xa = 0, ys = -9, ya = -9;
  EXPECT_EQ(cx_addxydimensionwithaxis_(Int(0), Int(77), Int(-1), Int(-1), Int(0), Int(0), &xs, &xa,
                                       &ys, &ya),
            -1);
  EXPECT_EQ(ys, -9) << "nothing is written after the step that failed";
  EXPECT_THAT(takeReports(), ElementsAre("frame handle (77) out of range (0-9)"));
}

TEST_F(EntryPoints, BuildElementsLegendsAndTitles) {
  create();
  std::int64_t style = 0, legend = 0, element = 0;
  EXPECT_EQ(cx_addframewithlabel_(Int(0), Int(graph), Int(17), Int(1), Int(text("T"))), 6);
  EXPECT_EQ(cx_addxyelementex_(Int(0), Int(data), Int(1), Int(23), Int(source), Int(source),
                               Int(96), &element),
            -1);
  EXPECT_EQ(element, 8) << "the element is there, its x is not";
  EXPECT_EQ(cx_addlegendframe_(Int(0), Int(graph), Int(element), Int(2), Int(36), Int(0), &style,
                               &legend),
            legend);
  EXPECT_EQ(fragment(0, static_cast<int>(legend) - 1),
            R"(<frame id="frame_legend_2" style="frame_legend_2default_style">)"
            R"(<legend id="legend_legend_2" style="legend_legend_2default_style">)"
            R"(<legendTarget aesthetic="styleBy" element="element_scatter_1" )"
            R"(id="legendTarget_legend_2"/></legend></frame>)");
  EXPECT_EQ(fragment(0, 6),
            R"(<frame id="frame_title_1" style="frame_title_1default_style"><label )"
            R"(id="label_title_1" style="label_title_1default_style">T</label></frame>)");
  EXPECT_THAT(takeReports(), ElementsAre("x requires a variable id reference source"));
}

TEST_F(EntryPoints, ReadTheLow32BitsAndAnyLogicalAndExactTexts) {
  create();
  const std::int64_t high = std::int64_t{5} << 32;
  EXPECT_EQ(cx_setframeclipping_(Int(high), Int(high + graph), Int(std::int64_t{1} << 40)), graph);
  EXPECT_THAT(fragment(0, 2), HasSubstr(R"(clip="true")"));
  const std::int64_t blanks = cx_nstring_(Int(0), "a  bcd", Int(3));
  EXPECT_EQ(registry().getUTF8String(static_cast<int>(blanks)), "a  ");
  EXPECT_EQ(registry().getUTF8String(static_cast<int>(cx_string_(Int(0), "abc", Int(-4)))), "");
  EXPECT_EQ(cx_addframe_(Int(0), Int(-1), Int(-1)), std::int64_t{-1}) << "sign-extended";
  EXPECT_EQ(registry().getUTF8String(static_cast<int>(cx_integer_(Int(0), Int(high - 7)))), "-7");
}

TEST_F(EntryPoints, TakeAMissingAddressAsAMissingArgument) {
  EXPECT_EQ(cx_addframe_(nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(cx_adddimensionaxis_(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                 nullptr, nullptr, nullptr, nullptr),
            -1);
  EXPECT_EQ(cx_double_(nullptr), -1);
  EXPECT_GE(cx_nstring_(nullptr, nullptr, nullptr), 0);
  EXPECT_THAT(takeReports(), ElementsAre("chart handle (-1) out of range (0-0)"));
}

TEST_F(EntryPoints, AnswerLifeCycleCalls) {
  EXPECT_EQ(cx_init_(nullptr, nullptr, "p", Int(1)), 0);
  EXPECT_EQ(cx_createchart_(nullptr, nullptr, "p", Int(1)), 0);
  EXPECT_EQ(cx_setchartdescription_(Int(5), "d", Int(1)), -1);
  EXPECT_EQ(registry().String(""), 158) << "the description's string was made all the same";
  EXPECT_EQ(cx_endchart_(Int(0)), 0);
  EXPECT_EQ(cx_killchart_(Int(0)), 0);
  EXPECT_EQ(cx_killcharts_(), 0);
  EXPECT_EQ(cx_dumpxml_(nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(cx_statisticssummary_(nullptr, nullptr, nullptr, nullptr), -1);
  EXPECT_EQ(cx_terminate_(), 0);
  EXPECT_EQ(cx_terminate_(), 0);
}
