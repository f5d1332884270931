// Scatterplot matrices: a panel for each pair of variables.

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"

namespace {

using nlohmann::json;

constexpr std::string_view diagonal = R"(<facetStyle style="fs" when="matrixscatterdiagonal"/>)";

class MatrixTest : public testing::Test {
protected:
  /// A matrix of A, B and C in columns, and in rows from C up to A.
  void draw(std::string_view before = "", std::string_view type = "point",
            std::string_view columns = "v1/l1 + v2/l2 + v5/l5", std::string_view style = "") {
    const std::string plot = fmt::format(
        R"({}<facetLabeling cellAspect="1"/>
      <dimension role="x" domain="mx" lowerMargin="0%" upperMargin="0%">
        <axis id="ax"><majorTicks/></axis></dimension>
      <dimension role="y" domain="my" lowerMargin="0%" upperMargin="0%">
        <axis id="ay"><majorTicks/></axis></dimension>
      <element type="{}" id="e">{}<x variable="mx"/><y variable="my"/></element>)",
        before, type, diagonal);
    const std::string rest = fmt::format(
        R"(<variable id="v5" sourceName="C" source="source0" categorical="false" label="C label"/>
      <variable id="mx" expression="{}" label="X Axis" categorical="false"/>
      <variable id="my" expression="v5/l5 + v2/l2 + v1/l1" label="Y Axis" categorical="false"/>
      <style id="fs" value="{}"/>)",
        columns, style);
    spec_ = folder_.write("chart.xml", document(plot, rest)).write("source0.csv", table).spec();
  }

  json panels() const {
    json groups = json::array();
    for (const json& mark : spec_["marks"][0]["marks"])
      if (mark["type"] == "group") groups.push_back(mark);
    return groups;
  }
  const json& notes() const { return spec_["usermeta"]["notes"]; }

  static constexpr std::string_view table = "A,B,Group,C\n"
                                            "1,10,a,100\n2,20,a,200\n3,40,b,300\n9,,b,900\n";
  TestFolder folder_;
  json spec_;
};

TEST_F(MatrixTest, EachPairOfVariablesHasAPanelWithTheScalesOfItsVariables) {
  draw();
  const json all = panels();
  ASSERT_EQ(all.size(), 9U);
  // The fourth row lacks B: no panel shows it, though A and C have values.
  const std::vector<json> domains{{1, 3}, {10, 40}, {100, 300}};
  for (std::size_t i = 0; i < all.size(); ++i) {
    EXPECT_EQ(all[i]["scales"][0]["domain"], domains[i % 3]) << i;
    EXPECT_EQ(all[i]["scales"][1]["domain"], domains[2 - i / 3]) << i;
    const json& update = all[i]["encode"]["update"];
    EXPECT_EQ(update["x"]["value"], 164 * (i % 3)) << i;
    EXPECT_EQ(update["y"]["value"], 164 * (i / 3)) << i;
  }
  const json& update = all[5]["marks"][0]["encode"]["update"];
  EXPECT_EQ(update["x"], json({{"scale", "x"}, {"field", "v5"}}));
  EXPECT_EQ(update["y"], json({{"scale", "y"}, {"field", "v2"}}));
  EXPECT_THAT(update["tooltip"]["signal"].get<std::string>(),
              testing::AllOf(testing::HasSubstr("C label"), testing::HasSubstr("[\"b\",")));
  EXPECT_EQ(spec_["data"][1]["transform"][0]["expr"],
            R"(isValid(datum["v1"]) && isValid(datum["v2"]) && isValid(datum["v5"]))");
  EXPECT_EQ(notes(), json({"rows left out for a missing value: 1 of 4 (e)"}));
}

TEST_F(MatrixTest, OuterAxesHaveTicksAndTellTheirVariables) {
  draw();
  std::vector<std::string> titles;
  for (const json& panel : panels())
    for (const json& axis : panel["axes"]) {
      EXPECT_EQ(axis["labels"].get<bool>(), !axis["title"].empty());
      titles.push_back(axis["title"].empty() ? "" : axis["title"][0].get<std::string>());
    }
  EXPECT_THAT(titles, testing::ElementsAre("", "C label", "", "", "", "", "", "b", "", "", "", "",
                                           "A label", "A label", "b", "", "C label", ""));
}

TEST_F(MatrixTest, TheDiagonalNamesItsVariableUnlessItsStyleDrawsItOtherwise) {
  const auto markTypes = [this] {
    std::vector<std::string> types;
    for (const json& panel : panels())
      types.push_back(panel["marks"][0]["type"].get<std::string>());
    return types;
  };
  const std::string s = "symbol";
  const std::string t = "text";
  draw();
  EXPECT_THAT(markTypes(), testing::ElementsAre(s, s, t, s, t, s, t, s, s));
  EXPECT_EQ(panels()[4]["marks"][0]["encode"]["update"]["text"], json({{"value", {"b"}}}));
  draw("", "point", "v1/l1 + v2/l2 + v5/l5", "fill:transparent");
  EXPECT_THAT(markTypes(), testing::Each(s));
  const json hollow{{"value", "transparent"}};
  EXPECT_EQ(panels()[4]["marks"][0]["encode"]["update"]["fill"], hollow);
  EXPECT_NE(panels()[3]["marks"][0]["encode"]["update"]["fill"], hollow);
}

TEST_F(MatrixTest, CellsOfTheDiagonalAreShadedAndHaveNoGridWhereItsStyleIsEmpty) {
  const std::string grid = fmt::format(
      R"(<facetLabeling><facetLabel id="f" level="2" cellStyle="c"/></facetLabeling>
      <dimension role="x"><axis id="g"><majorTicks><gridLines>{}</gridLines></majorTicks></axis>
      </dimension>)",
      diagonal);
  const auto gridOf = [this](std::size_t panel) { return panels()[panel]["axes"][0]["grid"]; };
  draw(grid);
  EXPECT_EQ(panels()[4]["marks"][0]["encode"]["update"]["fill"], json({{"signal", "faint"}}));
  EXPECT_EQ(gridOf(3), true);
  EXPECT_EQ(gridOf(4), false);
  draw(grid, "point", "v1/l1 + v2/l2 + v5/l5", "fill:transparent");
  EXPECT_EQ(gridOf(4), true);
}

TEST_F(MatrixTest, WhatAMatrixDoesNotShowIsNoted) {
  constexpr std::string_view refused =
      "e is not drawn: a matrix shows the same variables by points, and its rows as they are";
  draw("", "line");
  EXPECT_THAT(notes(), testing::Contains(refused));
  draw(R"(<coordinateTransform method="polar"/>)");
  EXPECT_THAT(notes(), testing::Contains(refused));
  draw(R"(<tableFacet><facetVariable role="x" variable="v3"/></tableFacet>)");
  EXPECT_THAT(notes(),
              testing::Contains("tableFacet is not drawn: the panels are those of a matrix"));
  draw(R"(<facetLabeling><facetLabel id="f" level="1"><label id="t">All</label></facetLabel>
    </facetLabeling><dimension role="x" sameRatio="trueCentered"/>)");
  EXPECT_THAT(notes(),
              testing::IsSupersetOf(
                  {"a unit cannot be as long along x as along y: a matrix has several of each",
                   "t is not drawn: the axes of a matrix tell its variables"}));
  for (const std::string_view term : {"v3/l3", "v2"}) {
    draw("", "point", fmt::format("v1/l1 + {}", term));
    EXPECT_THAT(notes(),
                testing::Contains(fmt::format("mx is not drawn yet: it is composed of {}", term)));
  }
}

} // namespace
