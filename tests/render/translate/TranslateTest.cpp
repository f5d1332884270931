#include <gtest/gtest.h>

#include <render/Pages.h>

#include "render/support/ChartFolder.h"

namespace {

using nlohmann::json;

class TranslateTest : public testing::Test {
protected:
  json spec(std::string_view plot, std::string_view rest = "",
            std::string_view table = smallTable) {
    return folder_.write("chart.xml", document(plot, rest)).write("source0.csv", table).spec();
  }
  json plotOf(std::string_view plot, std::string_view rest = "") {
    return spec(plot, rest)["marks"][0];
  }
  json notes(std::string_view plot, std::string_view rest = "",
             std::string_view table = smallTable) {
    return spec(plot, rest, table)["usermeta"]["notes"];
  }

private:
  TestFolder folder_;
};

const std::string groupedPoints = R"(<element type="point" id="points"><position><x variable="v1"/>
  <y variable="v2"/></position><styleBy variable="v3" id="by" styleCycle="c"/></element>)";
const std::string groupedLines = R"(<element type="line" id="lines"><x variable="v1"/>
  <y variable="v2"/><color variable="v3"/></element>)";
const std::string missingRow = "rows left out for a missing value: 1 of 3 (points)";
constexpr auto refusedFormula =
    "g is not drawn: its formula \"sin(x)\": expected a number, x, a function or \"(\" at "
    "character 1";

TEST_F(TranslateTest, APointElementBecomesSymbolsOfItsCompleteRows) {
  const json drawn = spec(groupedPoints);
  EXPECT_EQ(drawn["data"], json::parse(R"json([
    {"name": "source0", "values": [{"v1": 0, "v2": 10, "v3": "b"}, {"v1": 5, "v2": 20, "v3": "a"},
                                   {"v1": 10, "v2": null, "v3": "a"}]},
    {"name": "points", "source": "source0", "transform": [{"type": "filter",
     "expr": "isValid(datum[\"v1\"]) && isValid(datum[\"v2\"]) && isValid(datum[\"v3\"])"}]}])json"));
  EXPECT_EQ(drawn["marks"][0]["marks"], json::parse(R"json([
    {"type": "symbol", "from": {"data": "points"}, "clip": false, "encode": {"update": {
      "x": {"scale": "x", "field": "v1"}, "y": {"scale": "y", "field": "v2"},
      "size": {"value": 56}, "shape": {"scale": "symbol_v3", "field": "v3"},
      "stroke": {"scale": "color_v3", "field": "v3"}, "strokeWidth": {"value": 1.5},
      "fill": {"scale": "color_v3", "field": "v3"}, "fillOpacity": {"value": 0.55},
      "tooltip": {"signal":
"[[\"Group\",scale(\"label_v3\",datum[\"v3\"])],[\"A label\",format(datum[\"v1\"],\".6~g\")],[\"b\",format(datum[\"v2\"],\".6~g\")]]"
      }}}}])json"));
  EXPECT_EQ(drawn["usermeta"]["notes"], json({missingRow}));
}

TEST_F(TranslateTest, ScalesHoldTheDrawnValuesWithTheirMargins) {
  const json scales = plotOf(std::string(R"(<dimension role="x" lowerMargin="10%" upperMargin="0%"/>
    <dimension role="y" lowerMargin="wide"/>)") +
                             std::string(point))["scales"];
  EXPECT_EQ(scales[0]["domain"], json({-0.5, 5}));
  EXPECT_EQ(scales[1]["domain"], json({9.5, 20.5}));
}

TEST_F(TranslateTest, CategoriesAreSortedAndLabelled) {
  const json scales = plotOf(groupedPoints)["scales"];
  EXPECT_EQ(scales.back(), json::parse(R"({"name": "label_v3", "type": "ordinal",
    "domain": ["a", "b"], "range": ["Ä", "b"]})"));
}

TEST_F(TranslateTest, CategoriesThatAreNumbersAreSortedByTheirValue) {
  const json drawn = spec(groupedPoints, "", "A,B,Group\n1,1,10\n1,2,9\n");
  EXPECT_EQ(drawn["marks"][0]["scales"][2]["domain"], json({"9", "10"}));
}

TEST_F(TranslateTest, AnAxisHasTicksAndGridAsAsked) {
  const json axes = plotOf(std::string(R"(
    <dimension role="x"><axis><label id="l">Title</label><majorTicks><gridLines/></majorTicks>
    </axis></dimension><dimension role="y"><axis opposite="true"/></dimension>)") +
                           std::string(point))["axes"];
  EXPECT_EQ(axes[0], json::parse(R"json({"scale": "x", "orient": "bottom", "title": ["Title"],
    "grid": true, "ticks": true, "labels": true, "values": [0, 0.5, 1, 1.5, 2, 2.5, 3, 3.5, 4, 4.5, 5],
    "encode": {"labels": {"update": {"text": {"signal": "format(datum.value,\".1f\")"}}}}})json"));
  EXPECT_EQ(axes[1]["orient"], "right");
  EXPECT_EQ(axes[1]["title"], json({"b"}));
  EXPECT_EQ(axes[1]["labels"], false);
}

TEST_F(TranslateTest, ALegendShowsTheSymbolsOfItsTargets) {
  const std::string legend = R"(<frame id="f"><legend id="l">
    <legendTarget element="points" aesthetic="by"/><legendTarget element="lines" aesthetic="color"/>
    </legend></frame>)";
  const json both = plotOf(groupedPoints + groupedLines, legend)["legends"];
  ASSERT_EQ(both.size(), 1U);
  EXPECT_EQ(both[0]["title"], json({"Group"}));
  EXPECT_EQ(both[0]["shape"], "key_v3");
  const json points = plotOf(groupedPoints, legend)["legends"];
  EXPECT_EQ(points[0]["shape"], "symbol_v3");
  const json lines = plotOf(groupedLines, legend)["legends"];
  EXPECT_EQ(lines[0]["strokeDash"], "dash_v3");
}

TEST_F(TranslateTest, AFunctionIsDrawnAcrossTheXScaleAndNamedInALegend) {
  const json drawn = spec(std::string(point) + R"(<guide id="g" type="function" name="Fit">
    <parameter name="y" value="2 * x"/><parameter name="numPoints" value="3"/></guide>)");
  EXPECT_EQ(drawn["data"][2]["transform"], json::parse(R"json([
    {"type": "sequence", "start": 0, "stop": 3, "as": "i"},
    {"type": "formula", "as": "x", "expr": "(-0.25) + datum.i * 2.75"},
    {"type": "formula", "as": "y", "expr": "(2 * datum.x)"},
    {"type": "formula", "as": "y",
     "expr": "isFinite(datum.y) ? clamp(datum.y, (-100.5), 130.5) : null"}])json"));
  const json& legend = drawn["marks"][0]["legends"][0];
  EXPECT_EQ(legend["strokeDash"], "dash_function");
}

TEST_F(TranslateTest, TextsGoWhereTheirIdsSay) {
  const std::string texts = R"(<frame><label id="label_footnote_1">foot&#10;note</label></frame>
    <frame><label id="label_subtitle_1">sub</label></frame><frame><label id="label_title_1">top</label>
    </frame><frame><label id="label7">lost</label></frame>)";
  const json drawn = spec(point, texts);
  EXPECT_EQ(drawn["title"], json::parse(R"({"text": ["top"], "subtitle": ["sub"]})"));
  EXPECT_EQ(drawn["marks"][0]["title"]["text"], json({"foot", "note", "lost"}));
}

TEST_F(TranslateTest, WhatIsNotDrawnIsNoted) {
  const std::string unknown =
      std::string(point) +
      R"xml(<dimension role="z"/><dimension role="x"><scale method="log"/><axis><majorTicks delta="5"/>
      </axis></dimension><element type="interval"/><element type="point" id="e"><x variable="v1"/>
      </element><guide id="g" type="function"><parameter name="y" value="sin(x)"/></guide>
      <wonder color="&#10;red"><inner/></wonder>)xml";
  EXPECT_EQ(notes(unknown, R"(<style id="s" value="fill:red;fill-pattern:0"/>
                              <frame id="more"><element type="point"/></frame>)"),
            json({"more is not drawn yet: a chart shows one plot",
                  "e is not drawn: it has no y variable with data", missingRow,
                  "dimension: role=\"z\" is not drawn yet", "scale in dimension is not drawn yet",
                  "majorTicks: delta=\"5\" is not drawn yet",
                  "element of type interval in data is not drawn yet", refusedFormula,
                  "wonder in data is not drawn yet", "s: fill:red is not drawn yet"}));
}

TEST_F(TranslateTest, ValuesThatCannotBeDrawnAreCounted) {
  EXPECT_EQ(notes(point, "", "A,B,Group\n1,1,a\nx,2,a\n-1.797e308,3,a\n,4,a\n"),
            json({"values of A label left out, as they are no numbers that can be drawn: 2 of 4",
                  "rows left out for a missing value: 3 of 4 (points)"}));
}

TEST_F(TranslateTest, AChartWithoutRowsOrWithoutAPlotIsStillAChart) {
  EXPECT_EQ(notes(point, "", "A,B,Group\n"),
            json({"there are no values to draw along x", "there are no values to draw along y"}));
  EXPECT_EQ(notes(""), json({"the chart has no frame with dimensions or elements to draw"}));
}

TEST_F(TranslateTest, AllValuesEqualStillHaveAScale) {
  const json drawn = spec(point, "", "A,B,Group\n0,1e300,a\n0,1e300,a\n");
  const json& scales = drawn["marks"][0]["scales"];
  EXPECT_EQ(scales[0]["domain"], json({-0.55, 0.55}));
  EXPECT_LT(scales[1]["domain"][0], scales[1]["domain"][1]);
}

} // namespace
