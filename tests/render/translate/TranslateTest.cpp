#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>
#include <render/Pages.h>

#include "render/support/ChartFolder.h"
#include "render/support/Node.h"
#include "resolve/NumberFormat.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

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
  const auto shortest = [](const char* field) { return render::numberText(std::nullopt, field); };
  const std::string tooltip =
      fmt::format(R"([["Group",scale("label_v3",datum["v3"])],["A label",{}],["b",{}]])",
                  shortest(R"(datum["v1"])"), shortest(R"(datum["v2"])"));
  json marks = json::parse(R"json([
    {"type": "symbol", "from": {"data": "points"}, "clip": false,
     "walk": {"along": "right", "groups": ["v3"]}, "encode": {"update": {
      "x": {"scale": "x", "field": "v1"}, "y": {"scale": "y", "field": "v2"},
      "size": {"value": 56}, "shape": {"scale": "symbol_v3", "field": "v3"},
      "stroke": {"scale": "color_v3", "field": "v3"}, "strokeWidth": {"value": 1.5},
      "fill": {"scale": "color_v3", "field": "v3"}, "fillOpacity": {"value": 0.55}}}}])json");
  marks[0]["encode"]["update"]["tooltip"] = {{"signal", tooltip}};
  EXPECT_EQ(drawn["marks"][0]["marks"], marks);
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

const std::string monthAndYear = R"(<meta><dateTimeFormat><dateFormat><monthName/>
  <year showCentury="true"/></dateFormat><timeFormat/></dateTimeFormat></meta>)";
/// 1 January 2000, and a day and a year later.
constexpr auto dates = "A,B,Group\n13166064000,1,13166064000\n13166150400,2,13166064000\n"
                       "13197686400,3,\n";

TEST_F(TranslateTest, ADateAxisHasTicksAtPlacesOfTheCalendarInTheChartsLanguage) {
  folder_.write("manifest.json", R"({"language": "de", "numberSigns": {"decimal": "·"}})");
  const json drawn =
      spec(R"(<dimension role="x"><axis><majorTicks/></axis></dimension>
    <element type="point" id="points"><x variable="v4"/><y variable="v2"/></element>)",
           R"(<variable id="v4" sourceName="A" source="source0" categorical="false">)" +
               monthAndYear + "</variable>",
           dates);
  const json& axis = drawn["marks"][0]["axes"][0];
  EXPECT_EQ(axis["values"], json({13166064000, 13171248000, 13176518400, 13181788800, 13187145600,
                                  13192416000, 13197686400}));
  const std::string text = axis["encode"]["labels"]["update"]["text"]["signal"];
  EXPECT_THAT(text, HasSubstr(R"(,"%b ")"));
  EXPECT_EQ(drawn["config"]["locale"]["time"]["months"][2], "März");
  EXPECT_EQ(drawn["config"]["locale"]["number"]["decimal"], "·");
  EXPECT_EQ(drawn["config"]["locale"]["number"]["thousands"], ".");
  EXPECT_EQ(drawn["usermeta"]["notes"], json::array());
}

TEST_F(TranslateTest, CategoriesWithAFormatAreLabelledByIt) {
  const json drawn = spec(R"(<element type="point" id="points"><x variable="v1"/><y variable="v2"/>
    <color variable="v4"/></element>)",
                          R"(<variable id="v4" sourceName="A" source="source0" categorical="true">
    <relabel from="13166064000" to="&quot;first&quot;"/>)" +
                              monthAndYear + "</variable>",
                          dates);
  const json& scale = drawn["marks"][0]["scales"].back();
  EXPECT_EQ(scale["name"], "label_v4");
  const std::string labels = scale["range"]["signal"];
  EXPECT_THAT(labels, StartsWith(R"(["\"first\"",(abs(13166150400)<)"));
  const json rows = scriptOutput("texts.mjs", {folder_.path().native()});
  EXPECT_EQ(rows[0].back(), "\"first\"");
  EXPECT_EQ(rows[1].back(), "Jan 2000");
}

TEST_F(TranslateTest, LabelsOfACategoricalAxisAreWrappedBeforeTheyAreSlanted) {
  const auto axisOf = [this](const char* role, const std::string& label, int categories) {
    std::string table = "A,B,Group\n";
    for (int i = 0; i < categories; ++i)
      table += fmt::format("1,{},{}\n", i, i == 0 ? label : std::to_string(i));
    const std::string variables = role == std::string("x")
                                      ? R"(<x variable="v3"/><y variable="v2"/>)"
                                      : R"(<x variable="v2"/><y variable="v3"/>)";
    const json plot =
        spec(fmt::format(R"(<dimension role="{}"><axis><majorTicks/></axis></dimension>
      <element type="point" id="points">{}</element>)",
                         role, variables),
             "", table)["marks"][0];
    const auto scale = std::ranges::find_if(plot["scales"], [&](const json& each) {
      return each["name"] == std::string("label_") + role;
    });
    return std::pair(plot["axes"][0], (*scale)["range"].back());
  };
  const struct {
    const char* role;
    std::string label;
    int categories;
    json lines;
    bool slanted;
  } cases[] = {
      {"x", "one category", 2, {"one category"}, false},
      {"x", "one category of ten", 10, {"one", "category", "of ten"}, false},
      {"x", "Kategorienbezeichnung", 10, {"Kategorienbezeichnung"}, true},
      {"x", "とても長い日本語の分類", 10, {"とても長", "い日本語", "の分類"}, false},
      {"y",
       "a label that is wider than its room",
       3,
       {"a label that is wider than its", "room"},
       false},
  };
  for (const auto& [role, label, categories, lines, slanted] : cases) {
    const auto [axis, shown] = axisOf(role, label, categories);
    EXPECT_EQ(shown, lines) << label;
    EXPECT_EQ(axis.contains("labelAngle"), slanted) << label;
  }
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

TEST_F(TranslateTest, ASecondGroupingIsShownByShapesWithALegendOfItsOwn) {
  const std::string points = R"(<element type="point" id="points"><x variable="v1"/>
    <y variable="v2"/><styleBy variable="v4" id="by" styleCycle="c"/><color variable="v3"/></element>)";
  const std::string rest = R"(<variable id="v4" sourceName="B" source="source0" categorical="true"
    shortLabel="kind"/><frame id="f"><legend id="l"><legendTarget element="points"/></legend></frame>)";
  const json plot = plotOf(points, rest);
  const json& update = plot["marks"][0]["encode"]["update"];
  EXPECT_EQ(update["stroke"], json::parse(R"({"scale": "color_v3", "field": "v3"})"));
  EXPECT_EQ(update["shape"], json::parse(R"({"scale": "symbol_v4", "field": "v4"})"));
  ASSERT_EQ(plot["legends"].size(), 2U);
  EXPECT_EQ(plot["legends"][0]["stroke"], "color_v3");
  EXPECT_FALSE(plot["legends"][0].contains("shape"));
  EXPECT_EQ(plot["legends"][1]["shape"], "symbol_v4");
  EXPECT_EQ(plot["legends"][1]["title"], json({"kind"}));
  EXPECT_FALSE(plot["legends"][1].contains("stroke"));
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
  EXPECT_EQ(legend["strokeDash"], "dash_named1");
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
      R"xml(<dimension role="z"/><dimension role="x"><scale method="logit"/><axis><majorTicks position="middle"/>
      </axis></dimension><element type="cloud"/><element type="point" id="e"><x variable="v1"/>
      </element><guide id="g" type="function"><parameter name="y" value="sin(x)"/></guide>
      <wonder color="&#10;red"><inner/></wonder>)xml";
  EXPECT_EQ(
      notes(unknown, R"(<style id="s" value="fill:red;fill-pattern:0"/>
                              <frame id="more"><element type="point"/></frame>)"),
      json({"more is not drawn yet: a chart shows one plot",
            "e is not drawn: it has no y variable with data", "the scale logit is not drawn yet",
            missingRow, "dimension: role=\"z\" is not drawn yet",
            "majorTicks: position=\"middle\" is not drawn yet",
            "element of type cloud in data is not drawn yet", refusedFormula,
            "wonder in data is not drawn yet", "s: fill:red is not drawn yet"}));
}

TEST_F(TranslateTest, ValuesThatCannotBeDrawnAreCounted) {
  EXPECT_EQ(notes(point, "", "A,B,Group\n1,1,a\nx,2,a\n-1.797e308,3,a\n,4,a\n"),
            json({"values of A label left out, as they are no numbers that can be drawn: 2 of 4",
                  "rows left out for a missing value: 3 of 4 (points)",
                  "v1: \"A label\" is drawn along numbers, and 1 of its values in 4 rows is none, "
                  "the first \"x\" in row 2; load numbers, or make it categorical"}));
}

TEST_F(TranslateTest, AChartWithoutRowsOrWithoutAPlotIsStillAChart) {
  EXPECT_EQ(notes(point, "", "A,B,Group\n"),
            json({"there are no values to draw along x", "there are no values to draw along y",
                  "source0: the chart uses its variables and it has no rows; add rows and load "
                  "their values"}));
  EXPECT_EQ(notes(""), json({"the chart has no frame with dimensions or elements to draw"}));
}

TEST_F(TranslateTest, AllValuesEqualStillHaveAScale) {
  const json drawn = spec(point, "", "A,B,Group\n0,1e300,a\n0,1e300,a\n");
  const json& scales = drawn["marks"][0]["scales"];
  EXPECT_EQ(scales[0]["domain"], json({-0.55, 0.55}));
  EXPECT_LT(scales[1]["domain"][0], scales[1]["domain"][1]);
}

} // namespace
