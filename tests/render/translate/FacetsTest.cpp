// Panels: which there are, what they hold, where they stand and what is written at them.

#include <algorithm>
#include <map>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"

namespace {

using nlohmann::json;

class FacetsTest : public testing::Test {
protected:
  void draw(std::string_view facets, std::string_view element = point,
            std::string_view yAttributes = "", std::string_view rows = table) {
    const std::string plot =
        fmt::format(R"({}<dimension role="x"><axis id="ax"><majorTicks/></axis></dimension>
      <dimension role="y" lowerMargin="0%" upperMargin="0%" {}><axis id="ay"><majorTicks/></axis>
      </dimension>{})",
                    facets, yAttributes, element);
    constexpr std::string_view kind =
        R"(<variable id="v4" sourceName="Kind" source="source0" categorical="true" label="Kind"/>)";
    spec_ = folder_.write("chart.xml", document(plot, kind)).write("source0.csv", rows).spec();
  }

  json panels() const {
    json groups = json::array();
    for (const json& mark : spec_["marks"][0]["marks"])
      if (mark["type"] == "group") groups.push_back(mark);
    return groups;
  }
  /// How many rows each panel draws.
  std::vector<std::size_t> counts() const {
    std::vector<std::size_t> counts;
    for (const json& data : spec_["data"])
      if (data["name"] != "source0") counts.push_back(data["values"].size());
    return counts;
  }
  std::vector<std::string> labels() const {
    std::vector<std::string> texts;
    for (const json& mark : spec_["marks"][0]["marks"])
      if (mark["type"] == "text")
        texts.push_back(mark["encode"]["update"]["text"]["value"].get<std::string>());
    return texts;
  }

  static constexpr std::string_view table = "A,B,Group,Kind\n"
                                            "1,10,a,p\n2,20,a,p\n3,30,b,p\n4,90,b,q\n5,50,b,q\n";
  TestFolder folder_;
  json spec_;
};

constexpr std::string_view byGroup = R"(<facetVariable role="x" variable="v3"/>)";
constexpr std::string_view byKind = R"(<facetVariable role="x" variable="v4"/>)";
constexpr std::string_view byKindDown = R"(<facetVariable role="y" variable="v4"/>)";

std::string combined(std::string_view combinator, std::string_view one, std::string_view other) {
  return fmt::format("<tableFacet><{0}>{1}{2}</{0}></tableFacet>", combinator, one, other);
}

TEST_F(FacetsTest, CombinatorsMakePanelsOfTheValuesOfTheirVariables) {
  const struct {
    std::string facets;
    std::vector<std::size_t> counts;
    std::vector<std::string> labels;
  } cases[] = {
      {fmt::format("<tableFacet>{}</tableFacet>", byGroup), {2, 3}, {"Ä", "b", "Group"}},
      {combined("cross", byGroup, byKindDown), {2, 1, 0, 2}, {"Ä", "b", "Group", "p", "q", "Kind"}},
      {combined("cross", byGroup, byKind),
       {2, 0, 1, 2},
       {"Ä", "b", "p", "q", "p", "q", "Group, Kind"}},
      {combined("nest", byGroup, byKind), {2, 1, 2}, {"Ä", "b", "p", "p", "q", "Group, Kind"}},
      {combined("blend", byGroup, byKind), {2, 3, 3, 2}, {"Ä", "b", "p", "q", "Group, Kind"}},
  };
  for (const auto& [facets, expected, texts] : cases) {
    draw(facets);
    EXPECT_EQ(counts(), expected) << facets;
    EXPECT_EQ(labels(), texts) << facets;
    const auto empty = static_cast<std::size_t>(std::ranges::count(expected, 0U));
    EXPECT_EQ(spec_["usermeta"]["notes"].size(), empty) << facets; // tells of empty panels
  }
}

TEST_F(FacetsTest, LabelsOfNarrowColumnsHaveSeveralLinesAndMoveTheLevelsBeyond) {
  std::string rows = "A,B,Group,Kind\n";
  for (const char* kind : {"North East Central", "n", "o", "p", "q", "r", "s", "t"})
    rows += fmt::format("1,2,a,{}\n3,4,a,{}\n", kind, kind);
  draw(combined("nest", byGroup, byKind), point, "", rows);
  json places = json::array();
  for (const json& mark : spec_["marks"][0]["marks"])
    if (mark["type"] == "text")
      places.push_back({mark["encode"]["update"]["text"]["value"], mark["encode"]["update"]["y"]});
  ASSERT_EQ(places.size(), 10U);
  EXPECT_EQ(places[2], json::parse(R"([["North East","Central"],{"value":-17,"offset":-7.5}])"));
  EXPECT_EQ(places[1], json::parse(R"(["n",{"value":-17}])"));
  EXPECT_EQ(places[0], json::parse(R"(["Ä",{"value":-43.5}])"));
  EXPECT_EQ(places[9], json::parse(R"(["Group, Kind",{"value":-64.5}])"));
}

TEST_F(FacetsTest, PanelsStandInRowsAndColumnsWithTheirAxesOutside) {
  draw(combined("cross", byGroup, byKindDown));
  const json all = panels();
  ASSERT_EQ(all.size(), 4U);
  EXPECT_EQ(all[3]["encode"]["update"]["x"], json({{"value", 367}}));
  EXPECT_EQ(all[3]["encode"]["update"]["y"], json({{"value", 247}}));
  EXPECT_EQ(all[3]["encode"]["update"]["width"], json({{"value", 353}}));
  std::vector<bool> labelled;
  for (const json& panel : all)
    for (const json& axis : panel["axes"])
      labelled.push_back(axis["labels"].get<bool>());
  // Of each panel x and y: x below the last row, y beside the first column.
  EXPECT_THAT(labelled, testing::ElementsAre(false, true, false, false, true, true, true, false));
  EXPECT_EQ(all[2]["axes"][0]["title"], json({"A label"}));
  EXPECT_EQ(all[2]["axes"][0]["titleX"], 360);
  EXPECT_EQ(all[3]["axes"][0]["title"], json::array());
}

TEST_F(FacetsTest, PanelsHaveOneScaleOrEachItsOwn) {
  const std::string facets = fmt::format("<tableFacet>{}</tableFacet>", byGroup);
  const auto domains = [this] {
    json ends = json::array();
    for (const json& panel : panels())
      ends.push_back(panel["scales"][1]["domain"]);
    return ends;
  };
  draw(facets);
  EXPECT_EQ(domains(), json::parse("[[10,90],[10,90]]"));
  draw(facets, point, R"(facetsShareScale="false")");
  EXPECT_EQ(domains(), json::parse("[[10,20],[30,90]]"));
}

TEST_F(FacetsTest, HistogramsShareTheirBinsUnlessToldOtherwise) {
  const auto starts = [this](std::string_view parameter) {
    draw(fmt::format("<tableFacet>{}</tableFacet>", byGroup),
         fmt::format(R"(<element type="interval" id="h"><x variable="v2"/><statistic
           method="histogram"><parameter name="bins" value="2"/>{}</statistic></element>)",
                     parameter));
    json all = json::array();
    for (const json& data : spec_["data"])
      if (data["name"] != "source0") all.push_back(data["values"][0]["from"]);
    return all;
  };
  EXPECT_EQ(starts(""), json({10, 10}));
  EXPECT_EQ(starts(R"(<parameter name="facetsShareSpecification" value="false"/>)"),
            json({10, 30}));
}

TEST_F(FacetsTest, ACoordinateFacetPutsItsPanelsAlongOneAxis) {
  draw(fmt::format("<coordinateFacet>{}</coordinateFacet>", byGroup),
       R"(<element type="interval" id="e"><x variable="v4"/><y variable="v2"/>
         <styleBy variable="v4" id="by" styleCycle="c"/></element>)");
  const json all = panels();
  ASSERT_EQ(all.size(), 2U);
  EXPECT_FALSE(all[0]["encode"]["update"].contains("stroke"));
  EXPECT_EQ(all[0]["axes"][0]["labels"], false) << "the colors say it";
  EXPECT_EQ(labels(), (std::vector<std::string>{"Ä", "b", "Group"}));
  EXPECT_GT(spec_["marks"][0]["marks"][2]["encode"]["update"]["y"]["value"], 480);
}

TEST_F(FacetsTest, AFacetVariableOrTheLabelOfItsLevelTellsTheGapAndTheTitle) {
  constexpr std::string_view labeling = R"(<facetLabeling><facetLabel id="f" level="2" gap="48px">
    <axis id="fa"><label id="fl">Which kind</label></axis></facetLabel></facetLabeling>)";
  draw(fmt::format(R"(<tableFacet><facetVariable role="x" variable="v3" gap="10%"/>
    <facetVariable role="y" variable="v4"/></tableFacet>{})",
                   labeling));
  const json update = panels()[3]["encode"]["update"];
  EXPECT_EQ(update["x"], json({{"value", 324 + 72}}));
  EXPECT_EQ(update["y"], json({{"value", 216 + 48}}));
  EXPECT_EQ(labels().back(), "Which kind");
}

TEST_F(FacetsTest, ALevelWithACellStyleHasFramedPanelsAndShadedLabels) {
  const auto boxes = [this](std::string_view paint) {
    json found = json::array();
    for (const json& mark : spec_["marks"][0]["marks"]) {
      const json& update = mark["encode"]["update"];
      if (mark["type"] != "rect" || !update.contains(paint)) continue;
      found.push_back({update["x"]["value"], update["y"]["value"], update["width"]["value"],
                       update["height"]["value"]});
    }
    return found;
  };
  constexpr std::string_view crossed = R"(<tableFacet><facetVariable role="x" variable="v3"/>
    <facetVariable role="y" variable="v4"/></tableFacet><facetLabeling>{}</facetLabeling>)";
  const auto label = [](int level) {
    return fmt::format(R"(<facetLabel id="f{0}" level="{0}" cellStyle="s"/>)", level);
  };
  draw(fmt::format(crossed, label(0)));
  EXPECT_EQ(boxes("fill").size() + boxes("stroke").size(), 0U);
  draw(fmt::format(crossed, label(1) + label(2)));
  const json panel{{0, 0, 353, 233}, {0, 247, 353, 233}, {367, 0, 353, 233}, {367, 247, 353, 233}};
  EXPECT_EQ(boxes("stroke"), panel) << "each once";
  EXPECT_EQ(boxes("fill"),
            json({{0, -19, 353, 19}, {367, -19, 353, 19}, {720, 0, 19, 233}, {720, 247, 19, 233}}));
  draw(combined("nest", byGroup, byKind) + "<facetLabeling>" + label(1) + "</facetLabeling>");
  EXPECT_EQ(boxes("stroke"), json({{0, 0, 226, 480}, {254, 0, 466, 480}}))
      << "around all that belongs together";
}

TEST_F(FacetsTest, FacetsThatCannotBeDrawnAreNoted) {
  draw(R"(<tableFacet><facetVariable role="x" variable="v1"/></tableFacet>
    <facetLabeling id="l" cellAspect="none"/>)");
  EXPECT_EQ(spec_["usermeta"]["notes"],
            json({"facetVariable by v1 is not drawn: it has no categories",
                  "l: cellAspect=\"none\" is not drawn"}));
  draw(R"(<tableFacet><facetVariable role="x" variable="v3" gap="-5"/></tableFacet>
    <facetLabeling id="l" cellAspect="2"/>)");
  EXPECT_EQ(spec_["usermeta"]["notes"], json({"facetVariable: gap=\"-5\" is not drawn"}));
  EXPECT_EQ(panels()[0]["encode"]["update"]["width"], json({{"value", 240}}));
}

} // namespace
