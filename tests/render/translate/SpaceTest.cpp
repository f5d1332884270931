// Three dimensions: how the box is seen, and what is drawn in it.

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "compute/View.h"
#include "render/support/ChartFolder.h"

namespace {

using nlohmann::json;
using render::View;

constexpr View::Room room{.width = 400, .height = 400, .sideShare = 0, .endShare = 0};

TEST(View, FillsItsRoomAndShrinksWhatIsBehind) {
  const View view({.theta = 0, .phi = 0, .zeta = 0, .distance = 1.3}, room);
  const View::Point front = view.at({-0.5, 0.5, 0.5});
  EXPECT_NEAR(front.x, 0, 1e-9);
  EXPECT_NEAR(front.y, 0, 1e-9);
  const double eye = 1.3 * std::sqrt(3.0);
  EXPECT_NEAR(view.at({0.5, 0.5, -0.5}).x, 200 + 200 * (eye - 0.5) / (eye + 0.5), 1e-9);
}

TEST(View, AnglesTipTurnAndRollTheBox) {
  EXPECT_NEAR(View({.theta = 90, .phi = 0}, room).at({0, 0.5, 0}).nearness, 0.5, 1e-9);
  EXPECT_GT(View({.theta = 0, .phi = 90}, room).at({0, 0, 0.5}).x, 250);
  EXPECT_LT(View({.theta = 0, .phi = 0, .zeta = 90}, room).at({0.5, 0, 0}).y, 150);
}

class SpaceTest : public testing::Test {
protected:
  void draw(std::string_view view, std::string_view guides = "", std::string_view type = "point") {
    const std::string plot = fmt::format(
        R"({}<dimension role="x"/><dimension role="y"/><dimension role="z" lowerMargin="0%"
        upperMargin="0%"><axis id="az"><majorTicks/></axis></dimension>{}<element type="{}" id="e">
        <x variable="v1"/><y variable="v2"/><z variable="v4"/></element>)",
        view, guides, type);
    constexpr std::string_view rest =
        R"(<variable id="v4" sourceName="C" source="source0" categorical="false" label="C label"/>)";
    spec_ = folder_.write("chart.xml", document(plot, rest))
                .write("source0.csv", "A,B,Group,C\n1,10,a,0\n2,20,a,50\n3,40,b,100\n")
                .spec();
  }
  const json& marks() const { return spec_["marks"][0]["marks"]; }
  std::size_t countOf(std::string_view property) const {
    std::size_t count = 0;
    for (const json& mark : marks())
      if (mark["type"] == "path") count += mark["encode"]["update"].contains(property) ? 1 : 0;
    return count;
  }
  const json& notes() const { return spec_["usermeta"]["notes"]; }

  TestFolder folder_;
  json spec_;
};

constexpr std::string_view straight = R"(<coordinateTransform method="rectangular">
  <parameter name="theta" value="0"/><parameter name="phi" value="0"/>
  <parameter name="distance" value="1.3"/></coordinateTransform>)";

TEST_F(SpaceTest, PointsStandWhereTheViewPutsThemTheNearestLast) {
  draw(straight);
  const json& transforms = spec_["data"][1]["transform"];
  EXPECT_THAT(transforms[1]["expr"].get<std::string>(),
              testing::EndsWith(R"(+1*((datum["v4"]-0)/100-0.5)))"));
  EXPECT_EQ(transforms[4], json::parse(R"({"type": "collect", "sort": {"field": "near"}})"));
  const json& update = marks().back()["encode"]["update"];
  EXPECT_EQ(update["x"], json({{"field", "across"}}));
  EXPECT_THAT(update["tooltip"]["signal"].get<std::string>(), testing::HasSubstr("C label"));
  std::vector<json> texts;
  for (const json& mark : marks())
    if (mark["type"] == "text") texts.push_back(mark["encode"]["update"]["text"]);
  EXPECT_EQ(texts.size(), 4U) << "every other one of six ticks, which would overlap, and the title";
  EXPECT_THAT(texts[1]["signal"].get<std::string>(), testing::HasSubstr("format(40,"));
  EXPECT_EQ(texts.back(), json({{"value", {"C label"}}}));
  EXPECT_EQ(notes(), json::array());
  draw(R"(<coordinateTransform method="rectangular"><parameter name="phi" value="-60"/>
    </coordinateTransform>)");
  EXPECT_EQ(
      std::ranges::count(marks(), json("text"), [](const json& mark) { return mark["type"]; }), 7)
      << "all where the edge is longer";
}

TEST_F(SpaceTest, GuidesDrawSidesAndEdgesOfTheBox) {
  const auto frame = [](std::string_view complete) {
    return fmt::format(
        R"(<guide type="frame" id="g"><parameter name="complete" value="{}"/></guide>)", complete);
  };
  draw(straight, frame("true"));
  EXPECT_EQ(countOf("stroke"), 12U);
  draw(straight, frame("false"));
  EXPECT_EQ(countOf("stroke"), 9U);
  draw(straight, R"(<guide type="plane" id="p"><parameter name="normal" value="y"/></guide>)");
  EXPECT_EQ(countOf("fill"), 1U);
  EXPECT_EQ(notes(), json::array());
}

TEST_F(SpaceTest, WhatSpaceDoesNotShowIsNoted) {
  draw(R"(<coordinateTransform method="rectangular"><parameter name="distance" value="0.2"/>
       </coordinateTransform>)",
       R"(<guide type="plane" id="p"/>)", "line");
  EXPECT_THAT(notes(), testing::IsSupersetOf(
                           {"coordinateTransform: distance=0.2 is not drawn",
                            "p is not drawn: it is no side of a box",
                            "e is not drawn: in space there are points of three numbers"}));
  draw(R"(<coordinateTransform method="rectangular"/><coordinateTransform method="polar"/>)",
       R"(<guide type="line" id="l"><parameter name="x" value="2"/></guide>)");
  EXPECT_EQ(notes(), json({"a plot in space is neither transposed nor polar",
                           "l is not drawn: x=2 is outside the plot"}));
  draw("", R"(<guide type="frame" id="g"/>)");
  EXPECT_EQ(notes(), json({"e: its z is not drawn: the plot is flat",
                           "dimension: role=\"z\" is not drawn yet",
                           "the axis of z is not drawn yet", "g is not drawn: the plot is flat"}));
}

} // namespace
