// Axes, panels and the ends of scales as the document asks for them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"

namespace {

using nlohmann::json;

json specOf(std::string_view plot, std::string_view rest = "",
            std::string_view table = "A,B,Group\n0.3,10,b\n2,20,a\n4.7,25,c\n") {
  return TestFolder().write("chart.xml", document(plot, rest)).write("source0.csv", table).spec();
}

std::string axis(std::string_view role, std::string_view ticks, std::string_view attributes = "",
                 std::string_view rest = "") {
  return fmt::format(R"(<dimension role="{}"><axis {}><majorTicks {}/>{}</axis></dimension>)", role,
                     attributes, ticks, rest);
}

const std::string bars = R"(<element type="interval" id="e"><x variable="v3"/><y variable="v2"/>
  </element>)";

TEST(AxesTest, AxesAreDrawnAsTheirAttributesAsk) {
  const struct {
    const char* what;
    std::string plot;
    const char* where;
    json expected;
  } cases[] = {
      {"every other category one line lower",
       axis("x", R"(stagger="true")") + bars,
       "/marks/0/axes/0/encode/labels/update/dy",
       {{"signal", "round(datum.index*2)%2*17"}}},
      {"at the top, higher",
       axis("x", R"(stagger="true" delta="1")", R"(opposite="true")") + std::string(point),
       "/marks/0/axes/0/encode/labels/update/dy",
       {{"signal", "round(datum.index*3)%2*-17"}}},
      {"minor ticks inside",
       axis("y", "", "", R"(<minorTicks length="9" position="inside"/>)") + std::string(point),
       "/marks/0/axes/0/tickSize", -9},
  };
  for (const auto& [what, plot, where, expected] : cases)
    EXPECT_EQ(specOf(plot)[json::json_pointer(where)], expected) << what;
}

/// What the texts of a plot without Vega's axes say.
std::vector<std::string> textsOf(const json& spec) {
  std::vector<std::string> texts;
  for (const json& mark : spec["marks"][0]["marks"])
    if (mark["type"] == "text") {
      const json& text = mark["encode"]["update"]["text"];
      texts.push_back(text.contains("signal") ? text["signal"].get<std::string>()
                                              : text["value"].dump());
    }
  return texts;
}

TEST(AxesTest, CirclesAndBoxesHaveTheTicksAndFormatsOfTheirAxes) {
  const std::string fine = axis("theta", R"(delta="2")", "", R"(<numberFormat suffix="°"/>)");
  const json polar =
      specOf(R"(<coordinateTransform method="polar"/>)" + fine + axis("r", R"(length="3")") +
             R"(<element type="point" id="e"><theta variable="v1"/><r variable="v2"/></element>)");
  EXPECT_THAT(textsOf(polar), testing::IsSupersetOf(
                                  {R"(format(2,".0f")+"\u00b0")", R"(format(4,".0f")+"\u00b0")"}));
  json titles = json::array();
  for (const json& mark : polar["marks"][0]["marks"]) {
    const json& update = mark["encode"]["update"];
    if (update.contains("fontSize") && update["fontSize"]["value"] == 15)
      titles.push_back({update["text"]["value"], update["x"]["value"], update["y"]["value"],
                        update.value("angle", json())});
  }
  EXPECT_EQ(titles, json::parse(R"([[["A label"], 360, 520, null],
    [["b"], 42, 240, {"value": -90}]])"))
      << "under the circle and left of its labels";
  EXPECT_EQ(polar["marks"][0]["scales"][0]["domain"][1], 4.92);
  EXPECT_EQ(polar["usermeta"]["notes"],
            json({"majorTicks: length=\"3\" is not drawn in polar coordinates"}));

  const json space = specOf(
      R"(<coordinateTransform method="rectangular"/>)" +
      axis("x", R"(delta="2" labelAngle="45")", "", R"(<numberFormat suffix=" m"/><minorTicks/>)") +
      R"(<element type="point" id="e"><x variable="v1"/><y variable="v2"/><z variable="v1"/></element>)");
  EXPECT_THAT(textsOf(space), testing::Contains(R"(format(2,".0f")+" m")"));
  EXPECT_EQ(space["marks"][0]["marks"][0]["encode"]["update"]["angle"]["value"], 45);
  EXPECT_EQ(space["usermeta"]["notes"], json({"the minorTicks of axis are not drawn in space"}));
}

TEST(AxesTest, APolarAreaIsItsUpperEndAndBackAlongItsLowerOne) {
  const json spec = specOf(R"(<coordinateTransform method="polar"/>
    <element type="area" id="e"><x variable="v3"/><y variable="v2"/></element>)");
  json corners = json::array();
  for (const json& row : spec["data"][1]["values"])
    corners.push_back({row["v3"], row["high"]});
  EXPECT_EQ(corners, json::parse(R"([["a",20],["b",10],["c",25],["a",20],
                                     ["a",0],["c",0],["b",0],["a",0]])"));
  EXPECT_EQ(spec["marks"][0]["marks"][0]["encode"]["update"]["interpolate"]["value"],
            "linear-closed");
}

TEST(AxesTest, ReversedLabelsTurnTheOrderOfPanelsAndAnglesThatOfLetters) {
  const json spec = specOf(
      R"(<tableFacet><facetVariable role="x" variable="v3"/><facetVariable role="y" variable="v4"/>
      </tableFacet><facetLabeling><facetLabel id="c" level="1" reverse="true"/><facetLabel id="r"
      level="2"><axis><majorTicks labelAngle="-90" delta="3"/></axis></facetLabel></facetLabeling>)" +
          std::string(point),
      R"(<variable id="v4" sourceName="Group" source="source0" categorical="true"/>)");
  std::vector<std::pair<std::string, int>> labels;
  for (const json& mark : spec["marks"][0]["marks"])
    if (mark["type"] == "text") {
      const json& update = mark["encode"]["update"];
      labels.emplace_back(update["text"]["value"],
                          update.contains("angle") ? update["angle"]["value"].get<int>() : 0);
    }
  EXPECT_EQ(labels, (std::vector<std::pair<std::string, int>>{{"c", 0},
                                                              {"b", 0},
                                                              {"Ä", 0},
                                                              {"Group", 0},
                                                              {"a", -90},
                                                              {"b", -90},
                                                              {"c", -90},
                                                              {"v4", 90}}));
  EXPECT_EQ(spec["usermeta"]["notes"].back(), "r: delta=\"3\" is not drawn at panels");
}

TEST(AxesTest, AnIntervalEndsAtTheDataAsItsWordsSay) {
  const std::pair<std::pair<const char*, const char*>, json> cases[] = {
      {{"nice", "nice"}, {0, 5}},
      {{"exact", "exact"}, {0.3, 4.7}},
      {{"nice", "5.5"}, {0, 5.5}},
  };
  const std::string plot = R"(<dimension role="x" domain="d"/>)" + std::string(point);
  const auto domain = [](const char* min, const char* max) {
    return fmt::format(
        R"(<domain id="d" categorical="false"><interval min="{}" max="{}"/></domain>)", min, max);
  };
  for (const auto& [words, ends] : cases)
    EXPECT_EQ(specOf(plot, domain(words.first, words.second))["marks"][0]["scales"][0]["domain"],
              ends)
        << words.first;
  EXPECT_EQ(specOf(plot, domain("exact", "most"))["usermeta"]["notes"],
            json({"interval: max=\"most\" is not drawn"}));
}

} // namespace
