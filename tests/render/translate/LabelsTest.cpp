// Labels at marks: what they say, and where there is room for them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"
#include "resolve/NumberFormat.h"

namespace {

using nlohmann::json;

constexpr std::string_view table = "A,B,Group,Kind\n1,10,a,p\n2,25,a,q\n3,1,a,r\n4,40,b,p\n";
constexpr std::string_view inside =
    R"(<labeling variable="v2" style="labeling_insidedefault_style"/>)";
constexpr std::string_view beside = R"(<labeling variable="v2" style="labelingdefault_style"/>)";

json specOf(std::string_view type, std::string_view content, std::string_view modifier,
            std::string_view coordinates = "") {
  const std::string plot = fmt::format(R"({}<element type="{}" id="e" positionModifier="{}">{}
    <styleBy variable="v4" id="by" styleCycle="styleCycleColor"/></element>)",
                                       coordinates, type, modifier, content);
  return TestFolder()
      .write("chart.xml", document(plot, R"(<variable id="v4" sourceName="Kind" source="source0"
                               categorical="true"><relabel from="q" to="A kind of a very long name"/></variable>)"))
      .write("source0.csv", table)
      .spec();
}

json labelMark(const json& spec) { return spec["marks"][0]["marks"].back(); }

TEST(LabelsTest, BarsHoldTheirLabelsWhereTheyAreLargeEnough) {
  constexpr std::string_view bars = R"(<x variable="v3"/><y variable="v2"/>)";
  constexpr std::string_view pie = R"(<theta variable="v2"/>)";
  constexpr std::string_view polar = R"(<coordinateTransform method="polar"/>)";
  constexpr std::string_view transposed = R"(<coordinateTransform method="transpose"/>)";
  const json none = nullptr;
  const struct {
    const char* what;
    std::string content;
    std::string_view modifier;
    std::string_view coordinates;
    json places; ///< of the values 10, 25, 1 and 40
    json notes;
  } cases[] = {
      {"beyond the end",
       fmt::format("{}{}", bars, beside),
       "dodge",
       "",
       {none, none, none, none},
       json::array()},
      {"inside",
       fmt::format("{}{}", bars, inside),
       "dodge",
       "",
       {"inside", "inside", none, "inside"},
       json::array()},
      {"across, where one is as long as its digit",
       fmt::format("{}{}", bars, inside),
       "dodge",
       transposed,
       {"inside", "inside", "inside", "inside"},
       json::array()},
      {"wider than its bar",
       fmt::format("{}{}<labeling variable=\"v4\"/>", bars, inside),
       "dodge",
       "",
       {"inside", none, none, "inside"},
       json::array()},
      {"a stack has no room beyond",
       fmt::format("{}{}", bars, beside),
       "stack",
       "",
       {"inside", "inside", "none", "inside"},
       {"e: labels left out where parts of bars are too small: 1"}},
      {"pieces of a pie",
       fmt::format("{}{}", pie, inside),
       "stack",
       polar,
       {"inside", "inside", none, "inside"},
       json::array()},
  };
  for (const auto& [what, content, modifier, coordinates, places, notes] : cases) {
    const json spec = specOf("interval", content, modifier, coordinates);
    json found = json::object();
    for (const json& data : spec["data"])
      if (data["name"] == "e")
        for (const json& row : data["values"])
          found[std::to_string(row["value"].get<int>())] = row.value("label", none);
    EXPECT_EQ(json({found["10"], found["25"], found["1"], found["40"]}), places) << what;
    EXPECT_EQ(spec["usermeta"]["notes"], notes) << what;
  }
}

TEST(LabelsTest, ALabelWithinABarStandsInItsMiddleInLettersThatCanBeRead) {
  const json mark = labelMark(specOf(
      "interval", fmt::format(R"(<x variable="v3"/><y variable="v2"/>{})", beside), "stack"));
  json update = mark["encode"]["update"];
  EXPECT_EQ(
      update["y"],
      json({{"signal", "datum.label==='inside'?(scale(\"y\",datum.low)+scale(\"y\",datum.high))"
                       "/2:scale(\"y\",datum.high)"}}));
  EXPECT_EQ(update["dy"],
            json({{"signal", "datum.label==='inside'?0:(datum.low>datum.high?9:-9)"}}));
  EXPECT_EQ(update["fill"],
            json({{"signal", "datum.label==='inside'?(luminance(scale(\"color_v4\",datum[\"v4\"]))"
                             ">0.179?'#111111':'#ffffff'):ink"}}));
  EXPECT_EQ(update["opacity"], json({{"signal", "datum.label==='none'?0:1"}}));
}

TEST(LabelsTest, ALabelTellsValuesSharesOrNames) {
  const std::string place = R"(<x variable="v3"/>)";
  const std::string labelled = R"(<labeling variable="v1" style="labeling"/>)";
  const struct {
    const char* type;
    std::string content;
    std::string text;
  } cases[] = {
      {"interval", place + R"(<statistic method="count"/>)" + labelled,
       render::numberText(std::nullopt, "datum.value")},
      {"interval", place + R"(<statistic method="percent"/>)" + labelled,
       "format(datum.value,\".1f\")+\"%\""},
      {"point", R"(<x variable="v1"/><y variable="v2"/><labeling variable="v3" style="labeling"/>)",
       R"(scale("label_v3",datum["v3"]))"},
      {"point",
       R"(<x variable="v1"/><y variable="v2"/><labeling variable="v3" style="labeling"/>)" +
           labelled,
       R"([scale("label_v3",datum["v3"]),)" + render::numberText(std::nullopt, R"(datum["v1"])") +
           "]"},
  };
  for (const auto& [type, content, text] : cases)
    EXPECT_EQ(labelMark(specOf(type, content, "none"))["encode"]["update"]["text"]["signal"], text)
        << content;
}

/// Each label's side of its point, and -1 for those that are left out.
json sidesOf(const json& spec, std::string_view element) {
  json sides = json::array();
  for (const json& data : spec["data"])
    if (data["name"] == element)
      for (const json& row : data["values"])
        sides.push_back(row.contains("label") ? -1 : row.value("side", 0));
  return sides;
}

std::string repeated(std::string_view row, int count) {
  std::string rows;
  for (int i = 0; i < count; ++i)
    rows += row;
  return rows;
}

TEST(LabelsTest, ALabelGoesToASideWhereItMeetsNothingOrIsLeftOut) {
  constexpr std::string_view points = R"(<element type="point" id="e" showCollidingLabels="{}">
    <x variable="v1"/><y variable="v2"/><labeling variable="v3" style="labeling"/></element>{})";
  constexpr std::string_view transposed = R"(<coordinateTransform method="transpose"/>)";
  const std::string across =
      R"(<guide type="line" id="r"><parameter name="y" value="52.5"/></guide>)";
  const std::string path = R"(<element type="path" id="p"><x variable="v1"/><y variable="v2"/>
    <split variable="v3"/></element>)";
  const struct {
    const char* what;
    std::string plot;
    std::string rows; ///< beside those of the corners
    json sides;       ///< of these
    int leftOut;
  } cases[] = {
      {"apart", fmt::format(points, "false", ""), "40,50,a\n60,50,a\n", {0, 0}, 0},
      {"one place, four sides",
       fmt::format(points, "false", ""),
       "50,50,a\n50,50,a\n50,50,a\n50,50,a\n",
       {0, 1, 2, 3},
       0},
      {"one place, more than sides",
       fmt::format(points, "false", ""),
       repeated("50,50,a\n", 9),
       {0, 1, 2, 3, -1, -1, -1, -1, -1},
       5},
      {"shown although they meet",
       fmt::format(points, "true", ""),
       repeated("50,50,a\n", 9),
       {0, 1, 2, 3, 4, 5, 6, 7, 0},
       0},
      {"a symbol above", fmt::format(points, "false", ""), "50,50,a\n50,52,a\n", {1, 0}, 0},
      {"a line across", fmt::format(points, "false", across), "50,50,a\n50,30,a\n", {1, 0}, 0},
      {"a line from one to the other",
       fmt::format(points, "false", path),
       "50,50,b\n50,60,b\n",
       {1, 0},
       0},
      {"transposed, where the right is the usual side",
       std::string(transposed) + fmt::format(points, "false", ""),
       "50,50,a\n50,50,a\n",
       {0, 1},
       0},
  };
  for (const auto& [what, plot, rows, sides, leftOut] : cases) {
    const json spec = TestFolder()
                          .write("chart.xml", document(plot))
                          .write("source0.csv", "A,B,Group\n0,0,a\n100,100,c\n" + rows)
                          .spec();
    json found = sidesOf(spec, "e");
    found.erase(found.begin(), found.begin() + 2);
    EXPECT_EQ(found, sides) << what;
    const json notes = spec["usermeta"]["notes"];
    EXPECT_EQ(notes,
              leftOut == 0
                  ? json::array()
                  : json{fmt::format("e: labels left out where they would overlap: {}", leftOut)})
        << what;
  }
}

TEST(LabelsTest, ANameThatStandsAloneMovesAwayFromTheMiddle) {
  constexpr std::string_view plot = R"(<guide type="line" id="r"><parameter name="y" value="0"/>
    </guide><guide type="line" id="s"><parameter name="y" value="100"/></guide>
    <element type="point" id="element_hiddenline_1"><x variable="v1"/><y variable="v2"/>
    <labeling variable="v3" style="labeling"/></element>)";
  const json spec = TestFolder()
                        .write("chart.xml", document(plot))
                        .write("source0.csv", "A,B,Group\n0,0,a\n100,100,b\n50,50,b\n")
                        .spec();
  EXPECT_EQ(sidesOf(spec, "element_hiddenline_1"), json({2, 1, 0}));
  const json update = labelMark(spec)["encode"]["update"];
  const auto signal = [](const char* text) { return json{{"signal", text}}; };
  EXPECT_EQ(update["dy"], signal("[0.0,-13.0,13.0,0.0,0.0,-13.0,-13.0,13.0,13.0,-26.0,26.0]"
                                 "[datum.side||0]"));
  EXPECT_EQ(update["opacity"], signal("datum.label==='none'?0:1"));
}

TEST(LabelsTest, OutliersOfABoxPlotAreLabelledByTheirRows) {
  std::string rows = "A,B,Group\n";
  for (int i = 1; i < 10; ++i)
    rows += fmt::format("{},{},a\n", 100 + i, i);
  const json spec =
      TestFolder()
          .write("chart.xml", document(R"(<element type="schema" id="e"><x variable="v3"/>
            <y variable="v2"/><labeling variable="v1" style="labeling"/></element>)"))
          .write("source0.csv", rows + "177,20,a\n")
          .spec();
  const json& last = spec["data"][1]["values"].back();
  EXPECT_EQ(last["part"], "outlier");
  EXPECT_EQ(last["v1"], 177);
  std::vector<std::string> labelled;
  for (const json& mark : spec["marks"][0]["marks"])
    if (mark["type"] == "text") labelled.push_back(mark["from"]["data"]);
  EXPECT_EQ(labelled, (std::vector<std::string>{"e_outlier", "e_extreme"}));
}

} // namespace
