// What the elements draw, as numbers: the data of their marks.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"

namespace {

using nlohmann::json;

class ElementsTest : public testing::Test {
protected:
  json spec(std::string_view plot, std::string_view table, std::string_view rest = "") {
    return folder_.write("chart.xml", document(plot, rest)).write("source0.csv", table).spec();
  }

  /// Of each row of an element's data these fields, in one array; absent ones are null.
  json drawn(std::string_view plot, std::string_view table, const std::vector<std::string>& fields,
             std::string_view rest = "") {
    spec_ = spec(plot, table, rest);
    json rows = json::array();
    for (const json& data : spec_["data"]) {
      if (data["name"] != "e") continue;
      for (const json& values : data["values"]) {
        json row = json::array();
        for (const std::string& field : fields)
          row.push_back(values.contains(field) ? values[field] : json());
        rows.push_back(std::move(row));
      }
    }
    return rows;
  }

  json scale(std::string_view name) const {
    for (const json& each : spec_["marks"][0]["scales"])
      if (each["name"] == name) return each;
    return {};
  }

  TestFolder folder_;
  json spec_;
};

std::string element(std::string_view type, std::string_view content,
                    std::string_view modifier = "none") {
  return fmt::format(R"(<element type="{}" id="e" positionModifier="{}">{}</element>)", type,
                     modifier, content);
}

std::string statistic(std::string_view method, std::string_view parameters = "") {
  return fmt::format(R"(<statistic method="{}">{}</statistic>)", method, parameters);
}

constexpr std::string_view weightVariable =
    R"(<variable id="w" sourceName="W" source="source0" categorical="false"><meta weight="true"/>
    </variable>)";
constexpr std::string_view placed = R"(<x variable="v3"/><y variable="v2"/>)";
constexpr std::string_view grouped =
    R"(<styleBy variable="v4" id="by" styleCycle="styleCycleDefault"/>)";
constexpr std::string_view groupVariable =
    R"(<variable id="v4" sourceName="Kind" source="source0" categorical="true"/>)";

constexpr std::string_view parts = "A,B,Group,Kind,W\n"
                                   "1,10,a,p,2\n1,30,a,q,1\n1,-5,a,r,1\n"
                                   "2,40,b,p,1\n3,20,b,q,1\n2,,b,q,1\n";

TEST_F(ElementsTest, BarsReachFromZeroAndStackInTheOrderOfTheirGroups) {
  const std::string content = fmt::format("{}{}", placed, grouped);
  const std::vector<std::string> fields{"v3", "v4", "low", "high", "value"};
  EXPECT_EQ(drawn(element("interval", placed), parts, {"v3", "low", "high"}),
            json::parse(R"([["a",0,10],["a",0,30],["a",0,-5],["b",0,40],["b",0,20]])"));
  EXPECT_EQ(drawn(element("interval", content, "stack"), parts, fields, groupVariable),
            json::parse(R"([["a","p",0,10,10],["a","q",10,40,30],["a","r",0,-5,-5],
                            ["b","p",0,40,40],["b","q",40,60,20]])"));
  EXPECT_EQ(scale("y")["domain"], json({-8.25, 63.25}));
  EXPECT_EQ(scale("x")["type"], "band");
  EXPECT_EQ(
      drawn(element("interval", content, "dodge"), parts, {"v3", "v4", "slot"}, groupVariable),
      json::parse(R"([["a","p",0],["a","q",1],["a","r",2],["b","p",0],["b","q",1]])"));
}

TEST_F(ElementsTest, AnEndThatIsTheBaseOfBarsHasNoMargin) {
  drawn(R"(<dimension role="y" lowerMargin="5%" upperMargin="10%"/>)" + element("interval", placed),
        "A,B,Group\n1,10,a\n1,30,b\n", {});
  EXPECT_EQ(scale("y")["domain"], json({0, 33}));
}

TEST_F(ElementsTest, AStatisticSumsUpTheRowsOfAPlaceWithTheirWeights) {
  const std::string counted = R"(<x variable="v3"/>)";
  const struct {
    std::string content;
    std::vector<std::pair<const char*, double>> values;
  } cases[] = {
      {counted + statistic("count"), {{"a", 4}, {"b", 3}}},
      {std::string(placed) + statistic("sum"), {{"a", 45}, {"b", 60}}},
      {std::string(placed) + statistic("mean"), {{"a", 11.25}, {"b", 30}}},
      {std::string(placed) + statistic("median"), {{"a", 10}, {"b", 30}}},
      {counted + statistic("cumulativeCount"), {{"a", 4}, {"b", 7}}},
      {counted + statistic("percent"), {{"a", 400.0 / 7}, {"b", 300.0 / 7}}},
  };
  for (const auto& [content, values] : cases)
    EXPECT_EQ(drawn(element("interval", content), parts, {"v3", "value"}, weightVariable), values)
        << content;
}

TEST_F(ElementsTest, SharesOfEachPlaceStackToAHundred) {
  const std::string share =
      R"(<x variable="v3"/>)" + statistic("percent", R"(<parameter name="base" value="place"/>)");
  EXPECT_EQ(drawn(element("interval", share + std::string(grouped), "stack"),
                  "A,B,Group,Kind\n1,1,a,p\n1,1,a,q\n1,1,a,q\n1,1,a,q\n1,1,b,q\n",
                  {"v3", "v4", "low", "high"}, groupVariable),
            json::parse(R"([["a","p",0,25],["a","q",25,100],["b","q",0,100]])"));
}

TEST_F(ElementsTest, AHistogramCountsValuesFromTheLowerEndOfEachBin) {
  const auto bins = [](std::string_view parameters) {
    return element("interval", R"(<x variable="v1"/>)" + statistic("histogram", parameters));
  };
  // Eight values: Sturges' four bins, 2 wide.
  constexpr std::string_view values = "A,B,Group\n0,,\n1.9,,\n2,,\n3,,\n5,,\n6,,\n6,,\n8,,\n";
  const struct {
    std::string parameters;
    json counts;
  } cases[] = {
      {"", {{0, 2, 2}, {2, 4, 2}, {4, 6, 1}, {6, 8, 2}, {8, 10, 1}}},
      {R"(<parameter name="bin-width" value="5"/>)", {{0, 5, 4}, {5, 10, 4}}},
      {R"(<parameter name="bin-width" value="4"/><parameter name="bin-start" value="-1"/>)",
       {{-1, 3, 3}, {3, 7, 4}, {7, 11, 1}}},
      {R"(<parameter name="bins" value="2"/>)", {{0, 4, 4}, {4, 8, 4}}},
  };
  for (const auto& [parameters, counts] : cases)
    EXPECT_EQ(drawn(bins(parameters), values, {"from", "to", "high"}), counts) << parameters;
  const std::pair<std::string_view, std::string_view> refused[] = {
      {R"(name="bin-width" value="wide")", R"(bin-width="wide" is not a positive number)"},
      {R"(name="bin-width" value="0.001")", R"(bin-width="0.001" makes more than 1000 bins)"},
      {R"(name="bins" value="1000000")", R"(bins="1000000" are more than 1000 bins)"},
  };
  for (const auto& [parameter, note] : refused) {
    EXPECT_EQ(
        drawn(bins(fmt::format("<parameter {}/>", parameter)), values, {"from", "to", "high"}),
        cases[0].counts);
    EXPECT_EQ(spec_["usermeta"]["notes"], json({fmt::format("statistic: {}", note)}));
  }
}

TEST_F(ElementsTest, WhatIsLeftOutForItsValuesOrWeightsIsToldApart) {
  constexpr std::string_view table = "A,B,Group\n1,1,a\n,0,a\n3,0,b\n4,-2,b\n5,,b\n";
  const std::string curve =
      element("line", R"(<x variable="v1"/>)" + std::string(grouped) +
                          statistic("distribution", R"(<parameter name="type" value="normal"/>)"));
  drawn(curve, table, {},
        R"(<variable id="v4" sourceName="Group" source="source0" categorical="true"/>
           <variable id="w" sourceName="B" source="source0"><meta weight="true"/></variable>)");
  EXPECT_EQ(spec_["usermeta"]["notes"],
            json({"e: values that do not differ have no normal curve: 1 of 1",
                  "there are no values to draw along x", "there are no values to draw along y",
                  "rows left out for a missing value: 2 of 5 (e)",
                  "rows left out for a weight of zero or less: 2 of 5 (e)"}));
}

TEST_F(ElementsTest, ANormalCurveHasTheAreaOfItsHistogram) {
  const std::string histogram =
      R"(<element type="interval" id="h"><x variable="v1"/>)" +
      statistic("histogram", R"(<parameter name="bin-width" value="2"/>)") + "</element>";
  const std::string curve = R"(<x variable="v1"/>)" +
                            statistic("distribution", R"(<parameter name="type" value="normal"/>)");
  const json rows = drawn(histogram + element("line", curve),
                          "A,B,Group\n1,,\n3,,\n5,,\n5,,\n7,,\n9,,\n", {"place", "high"});
  ASSERT_EQ(rows.size(), 201U);
  EXPECT_EQ(rows.front()[0], 0);
  EXPECT_EQ(rows.back()[0], 10);
  // Six cases in bins of 2 about the mean 5, with a deviation of the square root of 8.
  EXPECT_NEAR(rows[100][1].get<double>(), 12 * 0.3989422804 / 2.8284271247, 1e-9);
}

TEST_F(ElementsTest, ABoxPlotHasTheEndsOfItsPartsAndTheValuesBeyond) {
  std::string table = "A,B,Group\n";
  for (const double value : {1, 2, 3, 4, 5, 6, 7, 8, 9, 20})
    table += fmt::format("1,{},a\n", value);
  const json whole = json::parse(R"([["whisker",1,3],["whisker",8,9],["box",3,8],
                                     ["median",5.5,5.5],["outlier",20,20]])");
  EXPECT_EQ(drawn(element("schema", placed), table, {"part", "low", "high"}), whole);
  EXPECT_EQ(drawn(element("interval", std::string(placed) + statistic("tukeyHinges")), table,
                  {"part", "low", "high"}),
            json::array({whole[2]}));
  EXPECT_EQ(drawn(element("point", std::string(placed) + statistic("tukeyOutliers")), table,
                  {"part", "low", "high"}),
            json::array({whole[4]}));
}

TEST_F(ElementsTest, StackedAreasHaveEveryPlaceOfTheOthers) {
  const std::string content = fmt::format(R"(<x variable="v1"/><y variable="v2"/>{})", grouped);
  constexpr std::string_view table =
      "A,B,Group,Kind\n0,10,a,p\n2,30,a,p\n0,1,a,q\n1,2,a,q\n2,3,a,q\n";
  const std::vector<std::string> fields{"place", "v4", "low", "high"};
  json expected = json::parse(R"([[0,"p",0,10],[0,"q",10,11],[1,"p",0,0],[1,"q",0,2],
                                  [2,"p",0,30],[2,"q",30,33]])");
  EXPECT_EQ(drawn(element("area", content, "stack"), table, fields, groupVariable), expected);
  expected[2] = json::parse(R"([1,"p",0,20])");
  expected[3] = json::parse(R"([1,"q",20,22])");
  EXPECT_EQ(drawn(element("area", content, "stackinterpolating"), table, fields, groupVariable),
            expected);
}

TEST_F(ElementsTest, AVariableOfSeveralOthersIsARange) {
  const std::string range = R"(<x variable="v3"/><y variable="r"/>)";
  constexpr std::string_view variable =
      R"(<variable id="r" expression="v1 + v2" categorical="false"/>)";
  constexpr std::string_view table = "A,B,Group\n4,2,a\n1,3,b\n,5,b\n6,6,a\n";
  EXPECT_EQ(drawn(element("interval", range), table, {"v3", "low", "high"}, variable),
            json::parse(R"([["a",2,4],["b",1,3],["b",5,5],["a",6,6]])"));
  EXPECT_EQ(
      drawn(element("point", range), table, {"v3", "high", "member"}, variable),
      json::parse(R"([["a",4,0],["a",2,1],["b",1,0],["b",3,1],["b",5,1],["a",6,0],["a",6,1]])"));
  EXPECT_EQ(drawn(element("interval", std::string(placed) + statistic("range")),
                  "A,B,Group\n1,4,a\n2,7,a\n3,5,b\n4,5,b\n", {"v3", "low", "high"}),
            json::parse(R"([["a",4,7],["b",5,5]])"));
  drawn(element("area", range), table, {}, variable);
  EXPECT_EQ(spec_["marks"][0]["marks"][0]["marks"][0]["encode"]["update"]["fillOpacity"],
            json::parse(R"({"value":0.22})"))
      << "what a band is about shows through it";
}

TEST_F(ElementsTest, CategoriesAlongYMakeBarsLieAcross) {
  drawn(element("interval", R"(<y variable="v3"/>)" + statistic("count")), parts, {});
  const json& update = spec_["marks"][0]["marks"][0]["encode"]["update"];
  EXPECT_EQ(update["x"], json::parse(R"({"scale":"x","field":"high"})"));
  EXPECT_EQ(update["height"], json::parse(R"({"scale":"y","band":0.8})"));
  EXPECT_EQ(scale("x")["domain"][0], 0);
}

TEST_F(ElementsTest, LinesAndAreasGoAlongCategoriesInTheOrderOfTheScale) {
  constexpr std::string_view months =
      R"(<variable id="m" sourceName="A" source="source0" categorical="true"/>)";
  for (const char* type : {"line", "area"}) {
    const json drawn = spec(element(type, R"(<x variable="m"/><y variable="v2"/>)"),
                            "A,B,Group\n10,1,a\n2,3,a\n1,2,a\n", months);
    for (const json& data : drawn["data"]) {
      if (data["name"] != "e") continue;
      const json& steps = data["transform"];
      EXPECT_EQ(steps[steps.size() - 2], json::parse(R"json({"type":"formula","as":"place",
                  "expr":"indexof([\"1\",\"2\",\"10\"],datum[\"m\"])"})json"))
          << type;
      EXPECT_EQ(steps.back(), json::parse(R"({"type":"collect","sort":{"field":"place"}})"));
    }
  }
}

TEST_F(ElementsTest, HexagonsCountTheRowsOfTheirCells) {
  const json cells = drawn(
      element("polygon", R"(<x variable="v1"/><y variable="v2"/>)" +
                             statistic("bin", R"(<parameter name="grid" value="hex"/>)")),
      "A,B,Group\n0,0,a\n0.1,0.1,a\n20,0,a\n10,20,a\n10,20.1,a\n10.2,20,b\n", {"place", "value"});
  EXPECT_EQ(cells, json::parse("[[0,2],[10.5,3],[20,1]]"));
}

TEST_F(ElementsTest, TheColorsOfHexagonsHaveALegend) {
  const json drawn =
      spec(element("polygon", R"(<x variable="v1"/><y variable="v2"/>)" +
                                  statistic("bin", R"(<parameter name="grid" value="hex"/>)")),
           "A,B,Group\n0,0,a\n0.1,0.1,a\n20,20,a\n",
           R"(<frame id="f"><legend id="l"><label id="t">Rows</label>
              <legendTarget element="e"/></legend></frame>)");
  const json& plot = drawn["marks"][0];
  ASSERT_EQ(plot["legends"].size(), 1U);
  EXPECT_EQ(plot["legends"][0]["fill"], "shade_e");
  EXPECT_EQ(plot["legends"][0]["title"], json({"Rows"}));
  EXPECT_EQ(plot["legends"][0]["values"], json({0, 1, 2})) << "there are no halves of rows";
  for (const json& each : plot["scales"])
    if (each["name"] == "shade_e") {
      EXPECT_EQ(each["domain"], json({0, 2}));
    }
  EXPECT_EQ(drawn["usermeta"]["notes"], json::array());
}

TEST_F(ElementsTest, ARangeOfColorsHasTheTicksOfAnAxisOfItsValues) {
  const auto legend = [this](const char* rows) {
    return spec(
        element("point", R"(<x variable="v1"/><y variable="v1"/><color variable="v2"/>)"),
        std::string("A,B,Group\n") + rows,
        R"(<frame id="f"><legend id="l"><legendTarget element="e"/></legend></frame>)")["marks"][0]
                                                                                       ["legends"]
                                                                                       [0];
  };
  const json drawn = legend("1,0.31,a\n2,1.07,a\n");
  EXPECT_EQ(drawn["values"], json({0.4, 0.6, 0.8, 1.0}));
  EXPECT_EQ(drawn["encode"]["labels"]["update"]["text"]["signal"], R"(format(datum.value,".1f"))");
  EXPECT_EQ(legend("1,7,a\n2,7,a\n")["values"], json({7}));
}

TEST_F(ElementsTest, TheNameOfAStyleSaysWhatALineOrAPointLooksLike) {
  const struct {
    const char* type;
    const char* id;
    const char* property;
    const char* value;
  } cases[] = {
      {"line", "element_simpleline_1", "strokeDash", "null"},
      {"line", "element_controlchart_UCL_1", "strokeDash", R"({"value":[8,4]})"},
      {"line", "element_controlchart_Center_Step_LCL_1", "interpolate", R"({"value":"step"})"},
      {"line", "element_controlchart_LCL_1", "stroke", R"({"signal":"palette[1]"})"},
      {"line", "element_controlchart_Average_1", "stroke", R"({"signal":"ink"})"},
      {"line", "element_controlchart_Average_1", "strokeDash", "null"},
      {"line", "element_controlchart_USpec_1", "stroke", R"({"signal":"ink"})"},
      {"point", "element_survival_censored_1", "shape", R"({"value":"M-1,0H1M0,-1V1"})"},
      {"point", "element_survival_censored_1", "stroke", R"({"signal":"ink"})"},
  };
  for (const auto& each : cases) {
    const json drawn =
        spec(fmt::format(R"(<element type="{}" id="{}"><x variable="v1"/><y variable="v2"/>
                             </element>)",
                         each.type, each.id),
             parts);
    const json& update = drawn["marks"][0]["marks"][0]["encode"]["update"];
    EXPECT_EQ(update.value(each.property, json()), json::parse(each.value))
        << each.id << " " << each.property;
  }
}

TEST_F(ElementsTest, TheNameOfAStyleSaysWhatAnIntervalLooksLike) {
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"element_simplebar_1", {"rect"}},
      {"element_dropdownline_1", {"rule"}},
      {"element_errorbar_1", {"rule", "symbol", "symbol"}},
      {"element_errorbarhidden_1", {}},
  };
  for (const auto& [id, marks] : cases) {
    const json drawn = spec(fmt::format(R"(<element type="interval" id="{}">{}{}</element>)", id,
                                        placed, statistic("range")),
                            parts);
    std::vector<std::string> types;
    for (const json& mark : drawn["marks"][0]["marks"])
      types.push_back(mark["type"].get<std::string>());
    EXPECT_EQ(types, marks) << id;
  }
}

TEST_F(ElementsTest, OfAHiddenElementTheLabelsAreDrawnAtItsPlaces) {
  constexpr const char* hidden =
      R"(<element type="{}" id="element_hiddenline_1">{}<labeling variable="v3"/></element>)";
  for (const char* type : {"point", "line"}) {
    const json drawn = spec(fmt::format(fmt::runtime(hidden), type, placed), parts);
    const json& marks = drawn["marks"][0]["marks"];
    ASSERT_EQ(marks.size(), 1) << type;
    EXPECT_EQ(marks[0]["type"], "text");
    EXPECT_EQ(marks[0]["encode"]["update"]["dy"]["value"], 0);
    EXPECT_EQ(drawn["data"].back()["name"], marks[0]["from"]["data"]);
  }
}

TEST_F(ElementsTest, TheBarsOfAnIciclePlotTouchAndHaveRoomForALabelAtEverySecond) {
  constexpr std::string_view blank =
      R"(<variable id="v5" sourceName="Group" source="source0" categorical="true">
      <relabel from="b" to=" "/></variable>)";
  const std::string plot = R"(<dimension role="x"><axis id="a"><majorTicks/></axis></dimension>)" +
                           element("interval", R"(<x variable="v5"/><y variable="v2"/>)");
  struct Case {
    const char* orientation;
    const char* length;
    json size;
  };
  const Case cases[] = {{"vertical", "width", {1600, 480}}, {"horizontal", "height", {720, 1600}}};
  for (const auto& [orientation, length, size] : cases) {
    folder_.write("manifest.json",
                  fmt::format(R"({{"icicle":{{"orientation":"{}","rows":200}}}})", orientation));
    const json drawn = spec(plot, parts, blank);
    EXPECT_EQ(json({drawn["width"], drawn["height"]}), size);
    const json& group = drawn["marks"][0];
    EXPECT_EQ(group["marks"][0]["encode"]["update"][length],
              json::parse(R"({"scale":"x","band":1.0})"));
    EXPECT_EQ(group["axes"][0]["values"], json({"a"})) << "a blank label has no tick";
  }
}

TEST_F(ElementsTest, CirclesLieWhereTheScaleHasTheirValues) {
  drawn(R"(<coordinateTransform method="polar"/><dimension role="y" upperMargin="0%">
        <scale method="power"><parameter name="exponent" value="0.5"/></scale>
        <axis id="a"><majorTicks/></axis></dimension>)" +
            element("interval", placed),
        "A,B,Group\n1,100,a\n1,30,b\n", {});
  std::vector<std::string> circles;
  for (const json& mark : spec_["marks"][0]["marks"])
    if (const json& update = mark["encode"]["update"]; update.contains("path"))
      circles.push_back(update["path"]["value"].get<std::string>().substr(0, 8));
  EXPECT_THAT(circles,
              testing::ElementsAre("M107.331", "M151.789", "M185.903", "M214.663", "M240,0A2"));
}

TEST_F(ElementsTest, PiecesOfAPieAndBarsInPolarCoordinatesAreSectors) {
  constexpr std::string_view polar = R"(<coordinateTransform method="polar"/>)";
  const std::string pie = fmt::format(R"(<theta variable="v2"/>{}{})", statistic("sum"), grouped);
  for (const char* modifier : {"stack", "none"})
    EXPECT_EQ(drawn(fmt::format("{}{}", polar, element("interval", pie, modifier)), parts,
                    {"v4", "low", "high"}, groupVariable),
              json::parse(R"([["p",0,50],["q",50,100]])"));
  EXPECT_THAT(spec_["usermeta"]["notes"],
              testing::Contains("values below zero have no piece of e"));
  EXPECT_EQ(spec_["marks"][0]["marks"][0]["type"], "arc");
  drawn(fmt::format("{}{}", polar, element("interval", placed)), parts, {});
  const json& update = spec_["marks"][0]["marks"][0]["encode"]["update"];
  EXPECT_EQ(update["outerRadius"], json::parse(R"({"scale":"y","field":"high"})"));
  EXPECT_EQ(scale("y")["range"], json({0, 240}));
}

TEST_F(ElementsTest, SectorsSideBySideDivideTheAngleOfTheirCategory) {
  drawn(R"(<coordinateTransform method="polar"/>)" +
            element("interval", R"(<x variable="v3"/><y variable="v2"/><styleBy variable="v4"/>)",
                    "dodge"),
        "A,B,Group\n1,9,a\n2,4,a\n1,5,b\n", {},
        R"(<variable id="v4" sourceName="A" source="source0" categorical="true"/>)");
  const json& update = spec_["marks"][0]["marks"][0]["encode"]["update"];
  // Of the category's angle each of two has 0.4, and leaves 0.016 free at either side.
  EXPECT_EQ(update["startAngle"]["offset"]["signal"], "bandwidth(\"x\")*(0.116+datum.slot*0.4)");
  EXPECT_EQ(update["endAngle"]["offset"]["signal"], "bandwidth(\"x\")*(0.484+datum.slot*0.4)");
}

TEST_F(ElementsTest, WhatAnElementCannotDrawIsNoted) {
  constexpr std::string_view range =
      R"(<variable id="r" expression="v1 + v2" categorical="false"/>)";
  const struct {
    std::string plot;
    std::string note;
  } cases[] = {
      {element("interval", R"(<x variable="v3"/>)"),
       "e is not drawn: it has no y variable with data"},
      {element("interval", R"(<x variable="v1"/><y variable="v1"/>)" + statistic("mode")),
       "e: the statistic mode is not drawn yet"},
      {element("interval", R"(<x variable="v3"/>)" + statistic("histogram")),
       "e is not drawn: its statistic needs a continuous variable"},
      {element("point", R"(<x variable="v1"/><y variable="v2"/>)", "jitter"),
       "e: positionModifier=\"jitter\" is not drawn yet"},
      {R"(<element type="point" id="e" dot="auto"><x variable="v1"/><y variable="v2"/></element>)",
       "e: dot=\"auto\" is drawn for points along one variable only"},
      {element("schema", R"(<x variable="r"/><y variable="v2"/>)"),
       "e is not drawn: its statistic needs places of one variable"},
      {element("point", R"(<x variable="v1"/><y variable="r"/>)" +
                            statistic("bin", R"(<parameter name="grid" value="hex"/>)")),
       "e is not drawn: its statistic needs two variables"},
      {element("interval", R"(<x variable="v1"/><y variable="v2"/>)", "dodge"),
       "e: marks at numbers are not put side by side"},
      {element("area", R"(<x variable="v3"/><y variable="v3"/>)" + statistic("mean")),
       "e is not drawn: it measures categories"},
      {element("point", R"(<x variable="v1"/><y variable="v2"/><split variable="v9"/>)"),
       "e: the variable of its split has no data"},
  };
  for (const auto& [plot, note] : cases)
    EXPECT_THAT(spec(plot, parts, range)["usermeta"]["notes"], testing::Contains(note)) << plot;
}

TEST_F(ElementsTest, SymbolsAreSmallerWherePointsLieDensely) {
  const auto update = [](int step, int rows) {
    std::string table = "A,B,Group\n0,0,a\n10000,10000,a\n";
    for (int i = 0; i < rows; ++i)
      table += fmt::format("{},{},a\n", 4000 + i % 30 * step, 4000 + i / 30 * step);
    return TestFolder()
        .write("chart.xml", document(point))
        .write("source0.csv", table)
        .spec()["marks"][0]["marks"][0]["encode"]["update"];
  };
  const struct {
    const char* what;
    int step;
    int rows;
    int size;
    double outline;
  } cases[] = {
      {"far apart", 200, 300, 56, 1.5},
      {"at one pixel", 0, 300, 56, 1.5},
      {"close", 140, 900, 38, 1.24},
      {"as close as there are pixels", 20, 900, 14, 0.75},
  };
  for (const auto& [what, step, rows, size, outline] : cases) {
    const json drawn = update(step, rows);
    EXPECT_EQ(drawn["size"]["value"], size) << what;
    EXPECT_EQ(drawn["strokeWidth"]["value"], outline) << what;
  }
}

} // namespace
