// What tells elements apart that have neither groups nor colors of their own.

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"

namespace {

using nlohmann::json;

json specOf(std::string_view plot, std::string_view targets = "") {
  std::string legends;
  for (; !targets.empty(); targets.remove_prefix(std::min(targets.find(' ') + 1, targets.size()))) {
    legends += fmt::format(R"(<legend id="l"><legendTarget id="t" element="{}"/></legend>)",
                           targets.substr(0, targets.find(' ')));
    if (targets.find(' ') == std::string_view::npos) break;
  }
  return TestFolder()
      .write("chart.xml", document(plot, legends.empty() ? "" : "<frame>" + legends + "</frame>"))
      .write("source0.csv", "A,B,Group\n1,10,a\n2,20,b\n")
      .spec();
}

std::string element(std::string_view id, std::string_view type, std::string_view rest = "",
                    std::string_view variables = "12") {
  return fmt::format(R"(<element id="{}" type="{}" {}><x variable="v{}"/><y variable="v{}"/>
    </element>)",
                     id, type, rest, variables.front(), variables.back());
}

TEST(NamedLegendTest, ElementsWithoutGroupsTakeTheColorsOfTheCycleInTurn) {
  const struct {
    const char* what;
    std::string plot;
    std::vector<std::string> colors; ///< of the marks
  } cases[] = {
      {"bars and points",
       element("b", "interval", "", "32") + element("p", "point", "", "32"),
       {"palette[0]", "palette[1]"}},
      {"points on their line",
       element("l", "line") + element("p", "point"),
       {"palette[0]", "palette[0]"}},
      {"the same, named apart",
       element("l", "line", R"(name="Fit")") + element("p", "point", R"(name="Data")"),
       {"palette[0]", "palette[1]"}},
      {"of one group",
       R"(<elementGroup id="g">)" + element("b", "interval", "", "32") +
           element("l", "line", "", "32") + "</elementGroup>" + element("p", "point", "", "32"),
       {"palette[0]", "palette[0]", "palette[1]"}},
      {"ink takes no color",
       element("b", "interval", "", "32") + element("element_errorbar", "interval", "", "32") +
           element("p", "point", "", "32"),
       {"palette[0]", "ink", "ink", "ink", "palette[1]"}},
  };
  for (const auto& [what, plot, colors] : cases) {
    std::vector<std::string> drawn;
    const json spec = specOf(plot);
    for (const json& mark : spec["marks"][0]["marks"]) {
      const json& update = mark["encode"]["update"];
      drawn.push_back(update[update.contains("fill") ? "fill" : "stroke"]["signal"]);
    }
    EXPECT_EQ(drawn, colors) << what;
  }
}

TEST(NamedLegendTest, PointsOverFillingsAreOpaqueWithARim) {
  const json drawn = specOf(element("b", "interval", "", "32") + element("p", "point", "", "32"));
  const json& update = drawn["marks"][0]["marks"][1]["encode"]["update"];
  EXPECT_EQ(update["stroke"], json({{"signal", "paper"}}));
  EXPECT_EQ(update["fillOpacity"], json({{"value", 1}}));
}

TEST(NamedLegendTest, LinesAcrossThePlotHaveTheDashOfTheirStyle) {
  const auto line = [](int number, char role, const char* name) {
    return fmt::format(R"(<guide type="line" id="guide_referenceLine_{}" {}>
      <parameter name="{}" value="{}"/></guide>)",
                       number, name, role, role == 'x' ? 1.5 : 15);
  };
  const json first{6, 3};
  const json second{1.5, 3};
  const json third{10, 3, 1.5, 3};
  const struct {
    const char* what;
    std::string lines;
    json dashes; ///< of the marks, in the order of the lines
  } cases[] = {
      {"styles",
       line(201, 'y', "name='A'") + line(203, 'y', "name='B'") + line(202, 'y', ""),
       {first, third, second}},
      {"upright and level ones of one style",
       line(101, 'x', "") + line(201, 'y', ""),
       {first, first}},
      {"the same with names",
       line(101, 'x', "name='A'") + line(201, 'y', "name='B'"),
       {first, second}},
      {"as many styles as there are dashes", line(206, 'y', ""), {first}},
      {"no style",
       R"(<guide type="line" id="guidedefault"><parameter name="y" value="15"/></guide>)",
       {first}},
  };
  for (const auto& [what, lines, dashes] : cases) {
    json found = json::array();
    const json drawn = specOf(element("p", "point") + lines);
    for (const json& mark : drawn["marks"][0]["marks"])
      if (mark["type"] == "rule") found.push_back(mark["encode"]["update"]["strokeDash"]["value"]);
    EXPECT_EQ(found, dashes) << what;
  }
  const json plot =
      specOf(element("p", "point") + line(201, 'y', "name='A'") + line(202, 'y', "name='B'"),
             "guide_referenceLine_201 guide_referenceLine_202")["marks"][0];
  for (const json& scale : plot["scales"])
    if (scale["name"] == "dash_named1") {
      EXPECT_EQ(scale["range"], json({first, second}));
    }
}

TEST(NamedLegendTest, OneLegendHoldsAllThatIsNamed) {
  const json plot =
      specOf(element("b", "interval", R"(name="Bars")", "12") +
                 element("p", "point", R"(name="Points")") + element("l", "line") +
                 R"(<guide id="f" type="function" name="Fit"><parameter name="y" value="x"/></guide>
    <guide id="r" type="line" name="Mean"><parameter name="y" value="12"/></guide>
    <guide id="out" type="line" name="Far"><parameter name="y" value="99"/></guide>)",
             "r p l b out")["marks"][0];
  ASSERT_EQ(plot["legends"].size(), 1U);
  EXPECT_EQ(plot["legends"][0], json::parse(R"({"stroke":"stroke_named1","fill":"fill_named1",
    "shape":"shape_named1","strokeDash":"dash_named1","encode":{
    "symbols":{"update":{"fillOpacity":{"scale":"opacity_named1","field":"value"}}},
    "labels":{"update":{"text":{"scale":"label_named1","field":"value"}}}}})"));
  const json& scales = plot["scales"];
  const auto range = [&](const char* name) {
    for (const json& scale : scales)
      if (scale["name"] == name) return scale["range"];
    return json();
  };
  const char* line = "M-2.6,0H2.6";
  EXPECT_EQ(range("label_named1"), json::parse(R"([["Mean"],["Points"],["b"],["Bars"],["Fit"]])"));
  EXPECT_EQ(range("stroke_named1"),
            json({{"signal", "[ink,palette[1],palette[1],palette[0],ink]"}}));
  EXPECT_EQ(
      range("fill_named1"),
      json({{"signal", "['transparent',palette[1],'transparent',palette[0],'transparent']"}}));
  EXPECT_EQ(range("shape_named1"),
            json({line, "M1,0A1,1,0,1,1,-1,0A1,1,0,1,1,1,0Z", line, "M-1,-1H1V1H-1Z", line}));
  EXPECT_EQ(range("dash_named1"), json::parse("[[6,3],[],[],[],[8,4]]"));
}

TEST(NamedLegendTest, TheLinesOfAControlChartAreExplainedAsTheyLook) {
  const json plot = specOf(element("values", "line") + element("controlchart_UCL_1", "line") +
                               element("controlchart_Average_1", "line"),
                           "values controlchart_UCL_1 controlchart_Average_1")["marks"][0];
  for (const json& scale : plot["scales"]) {
    if (scale["name"] == "stroke_named1") {
      EXPECT_EQ(scale["range"]["signal"], "[palette[0],palette[1],ink]");
    }
    if (scale["name"] == "dash_named1") {
      EXPECT_EQ(scale["range"], json::parse("[[],[8,4],[]]"));
    }
  }
  EXPECT_FALSE(plot["legends"].empty());
}

TEST(NamedLegendTest, ValuesBeyondTheEndsOfTheDomainAreNoted) {
  const std::string plot = R"(<dimension role="y" domain="d"/>)" + element("p", "point", "", "32") +
                           element("b", "interval", "", "32");
  const std::string domain =
      R"(<domain id="d" categorical="false"><interval min="5" max="15"/></domain>)";
  const auto spec = [&](std::string_view clip, std::string_view beyond) {
    std::string chart = document(plot, domain);
    chart.insert(chart.find("<frame id=") + 6, fmt::format(" clip=\"{}\"", clip));
    return TestFolder()
        .write("chart.xml", chart)
        .write("source0.csv", fmt::format("A,B,Group\n1,10,a\n2,{},b\n3,15,a\n", beyond))
        .spec();
  };
  const struct {
    const char *clip, *beyond, *fate;
    bool isClipped;
  } cases[] = {{"false", "15.1", "drawn outside the axes", false},
               {"false", "15.9", "drawn outside the axes", false},
               {"false", "16.1", "cut off", true},
               {"false", "4.9", "drawn outside the axes", false},
               {"false", "4.7", "cut off", true},
               {"true", "15.1", "cut off", true}};
  for (const auto& [clip, beyond, fate, isClipped] : cases) {
    const json drawn = spec(clip, beyond);
    const std::string told = "values beyond the ends that the chart gives y: 1, ";
    EXPECT_EQ(drawn["usermeta"]["notes"], json({"p: " + told + fate, "b: " + told + fate}));
    for (const json& mark : drawn["marks"][0]["marks"])
      EXPECT_EQ(mark["clip"], isClipped) << beyond;
    EXPECT_EQ(drawn["data"][2]["values"][0]["low"], 5) << "bars begin where the scale does";
  }
}

} // namespace
