#include <gtest/gtest.h>

#include <fmt/format.h>
#include <render/Pages.h>

#include "render/support/ChartFolder.h"

namespace {

using nlohmann::json;

constexpr std::string_view bars = R"(<element type="interval" id="bars"><x variable="v1"/>
  <y variable="v2"/><color variable="v3" id="by"/></element>
  <legend id="legend"><legendTarget id="t" element="bars"/></legend>)";

json drawn(std::string_view chartTemplate, std::string_view plot, const std::string& theme = {}) {
  const TestFolder folder;
  folder.write("chart.xml", document(plot))
      .write("source0.csv", smallTable)
      .write("manifest.json", fmt::format(R"({{"name": "n", "template": "{}"}})", chartTemplate));
  render::writeChart(folder.path(), theme);
  return json::parse(folder.read("chart.vg.json"));
}

TEST(Themes, AreTheUsualOneForATemplateThatIsEmptyOrUnknownAndOneThatIsIsNoted) {
  json usual = drawn("", bars);
  EXPECT_EQ(drawn("default", bars), usual);
  usual["usermeta"]["notes"].insert(
      usual["usermeta"]["notes"].begin(),
      "the template Corporate\\2 is not known: the chart is drawn in the default theme");
  EXPECT_EQ(drawn("Corporate\\\\2", bars), usual);
}

TEST(Themes, GiveWayToTheOneThatIsAskedFor) {
  EXPECT_EQ(drawn("dark", bars, "presentation"), drawn("presentation", bars));
  EXPECT_EQ(drawn("Corporate", bars, "default"), drawn("", bars));
}

TEST(Themes, StateSizesToneAndWhetherTheReaderChooses) {
  struct Case {
    const char* name;
    const char* meta;
    bool isDark;
    int width;
    int height;
  };
  const Case cases[] = {
      {"dark", R"({"name": "dark", "followsReader": false})", true, 720, 480},
      {"presentation", R"({"name": "presentation", "followsReader": true, "magnification": 1.75})",
       false, 520, 300},
  };
  for (const auto& [name, meta, isDark, width, height] : cases) {
    const json spec = drawn(name, bars);
    EXPECT_EQ(spec["usermeta"]["theme"], json::parse(meta)) << name;
    EXPECT_EQ(spec["signals"][0], (json{{"name", "dark"}, {"value", isDark}})) << name;
    EXPECT_EQ(spec["width"], width) << name;
    EXPECT_EQ(spec["height"], height) << name;
  }
}

/// Every color that a print in black and white could not show.
void expectGray(const json& spec) {
  const std::string text = spec["signals"].dump() + spec["marks"].dump();
  for (auto at = text.find("'#"); at != text.npos; at = text.find("'#", at + 1))
    EXPECT_TRUE(text.substr(at + 2, 2) == text.substr(at + 4, 2) &&
                text.substr(at + 4, 2) == text.substr(at + 6, 2))
        << text.substr(at, 9);
}

TEST(Themes, TellGroupsApartByPatternsInPrint) {
  const json spec = drawn("print", bars);
  expectGray(spec);
  const json& plot = spec["marks"][0];
  EXPECT_EQ(plot["marks"][0]["encode"]["update"]["fill"],
            json::parse(R"({"scale": "fill_v3", "field": "v3"})"));
  EXPECT_EQ(plot["marks"][0]["encode"]["update"]["stroke"], json::parse(R"({"signal": "ink"})"));
  EXPECT_EQ(plot["legends"][0]["fill"], "fill_v3");
  json range;
  for (const json& scale : plot["scales"])
    if (scale["name"] == "fill_v3") range = scale["range"];
  EXPECT_EQ(range[1], "url(#chartxml-rising)");
  for (const json& filling : range) {
    const auto id = filling.get<std::string>();
    bool isThere = !id.starts_with("url");
    for (const json& pattern : spec["usermeta"]["theme"]["patterns"])
      isThere = isThere || id == fmt::format("url(#{})", pattern["id"].get<std::string>());
    EXPECT_TRUE(isThere) << id;
  }
}

TEST(Themes, HavePatternsWhereTheStyleCycleAsksForThem) {
  const json pattern{{"scale", "fill_v3"}, {"field", "v3"}};
  const json color{{"scale", "color_v3"}, {"field", "v3"}};
  const json note{"e: patterns are drawn as colors, symbols and dashes"};
  const struct {
    const char* type;
    const char* cycle;
    const json& filling;
    json notes;
  } cases[] = {{"interval", "styleCyclePattern", pattern, json::array()},
               {"area", "styleCyclePattern", pattern, json::array()},
               {"interval", "styleCycleColor", color, json::array()},
               {"interval", "styleCycleColor_styleCyclePattern", pattern, json::array()},
               {"point", "styleCycleColor_styleCyclePattern", color, json::array()},
               {"point", "styleCyclePattern", color, note}};
  for (const auto& [type, cycle, filling, notes] : cases) {
    const json spec = drawn("", fmt::format(R"(<element type="{}" id="e"><x variable="v1"/>
      <y variable="v2"/><styleBy variable="v3" id="by" styleCycle="{}"/></element>
      <legend id="legend"><legendTarget id="t" element="e"/></legend>)",
                                            type, cycle));
    const bool isPattern = filling == pattern;
    EXPECT_NE(spec["marks"][0]["marks"].dump().find(fmt::format("\"fill\":{}", filling.dump())),
              std::string::npos)
        << type << cycle;
    EXPECT_EQ(spec["marks"][0]["legends"][0].value("fill", "") == "fill_v3", isPattern);
    EXPECT_EQ(spec["usermeta"].contains("theme"), isPattern);
    json told = notes;
    told.push_back("rows left out for a missing value: 1 of 3 (e)");
    EXPECT_EQ(spec["usermeta"]["notes"], told);
  }
}

TEST(Themes, HavePatternsInColorsOfLightAndOfDarkWhereTheStyleCycleAsksForBoth) {
  const std::string both =
      std::string(bars).replace(bars.find("<color variable=\"v3\""), 20,
                                R"(<styleBy styleCycle="styleCycleColor_styleCyclePattern"
                                variable="v3")");
  const auto rangeOf = [](const json& spec) {
    json range;
    for (const json& scale : spec["marks"][0]["scales"])
      if (scale["name"] == "fill_v3") range = scale["range"];
    return range;
  };
  const json spec = drawn("", both);
  EXPECT_EQ(rangeOf(spec), json({{"signal", R"~(dark?["#56a8e8","url(#chartxml-rising-f0883e)"])~"
                                            R"~(:["#0072b2","url(#chartxml-rising-d55e00)"])~"}}));
  EXPECT_EQ(spec["usermeta"]["theme"]["patterns"], json::parse(R"([
    {"id": "chartxml-rising-d55e00", "size": 8, "path": "M-2,2L2,-2M0,8L8,0M6,10L10,6",
     "width": 1.4, "color": "#d55e00", "paper": "#ffffff"},
    {"id": "chartxml-rising-f0883e", "size": 8, "path": "M-2,2L2,-2M0,8L8,0M6,10L10,6",
     "width": 1.4, "color": "#f0883e", "paper": "#16181b"}])"));
  const json groups{{"scale", "color_v3"}, {"field", "v3"}};
  EXPECT_EQ(spec["marks"][0]["marks"][0]["encode"]["update"]["stroke"], groups);
  EXPECT_EQ(spec["marks"][0]["legends"][0]["stroke"], "color_v3");
  EXPECT_EQ(rangeOf(drawn("print", both)), rangeOf(drawn("print", bars)));
}

TEST(Themes, PutPaperAroundLettersOnPatterns) {
  const std::string labelled = std::string(bars).replace(
      bars.find("</element>"), 0,
      R"(<labeling variable="v2" style="labeling_insidedefault_style"/>)");
  const auto lettersOf = [&](const char* theme) {
    json letters = json::array();
    const json spec = drawn(theme, labelled);
    for (const json& mark : spec["marks"][0]["marks"])
      if (mark["type"] == "text")
        letters.push_back({mark["encode"]["update"]["fill"]["signal"], mark.value("aria", true)});
    return letters;
  };
  EXPECT_EQ(lettersOf("print"), json::parse(R"([["paper", false], ["ink", true]])"));
  EXPECT_EQ(lettersOf("default").size(), 1);
}

TEST(Themes, DashLinesBesideSymbolsInPrint) {
  constexpr std::string_view both = R"(
    <element type="point" id="p"><x variable="v1"/><y variable="v2"/><color variable="v3"/></element>
    <element type="line" id="l"><x variable="v1"/><y variable="v2"/><color variable="v3"/></element>)";
  const auto dashOf = [&](const char* theme) {
    return drawn(theme, both)["marks"][0]["marks"][1]["marks"][0]["encode"]["update"].value(
        "strokeDash", json());
  };
  EXPECT_EQ(dashOf("print"), json::parse(R"({"scale": "dash_v3", "field": "v3"})"));
  EXPECT_EQ(dashOf("default"), json());
}

TEST(Themes, LegendsShowBarsAndAreasAsTheyAreFilled) {
  const auto plotOf = [](std::string_view type, std::string_view content) {
    return fmt::format(R"(<element type="{}" id="e" name="Named"><x variable="v1"/>
      <y variable="v2"/>{}</element><legend id="l"><legendTarget id="t" element="e"/></legend>)",
                       type, content);
  };
  const json named = drawn("print", plotOf("interval", ""))["marks"][0];
  const json& bar = named["marks"][0]["encode"]["update"];
  for (const json& scale : named["scales"]) {
    if (scale["name"] != "fill_named1") continue;
    EXPECT_EQ(scale["range"]["signal"], R"(["#cfcfcf"])");
  }
  EXPECT_EQ(bar["fill"]["value"], "#cfcfcf");

  const json areas = drawn("", plotOf("area", R"(<color variable="v3" id="by"/>)"))["marks"][0];
  const json& legend = areas["legends"][0];
  EXPECT_EQ(legend["encode"]["symbols"]["update"]["fillOpacity"],
            areas["marks"][0]["marks"][0]["encode"]["update"]["fillOpacity"]);
  EXPECT_FALSE(legend.contains("stroke")) << "as the areas";
}

} // namespace
