#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"
#include "text/PlainValue.h"
#include "text/Words.h"

namespace {

/// A range between two columns, and a column whose numbers below zero have no sign.
constexpr std::string_view composed =
    R"(<variable id="r" categorical="false" expression="v1 + v2"/><variable id="c"
    value="40" categorical="false" source="source0"/><variable id="m" sourceName="B"
    source="source0" categorical="false"><relabel from="-3" to="3"/><relabel from="2" to="2"/>
    </variable>)";

std::string describe(std::string_view plot, std::string_view table, std::string_view language) {
  const TestFolder folder;
  folder.write("chart.xml", document(plot, composed))
      .write("source0.csv", table)
      .write("manifest.json", fmt::format(R"({{"name": "n", "description": "What it is about.",
                                              "language": "{}"}})",
                                          language));
  return folder.spec()["description"];
}

/// y falls with x a little, and the last of 13 rows turns that around.
std::string fallingRows() {
  std::string table = "A,B,Group\n";
  for (int i = 0; i < 12; ++i)
    table += fmt::format("{},{},{}\n", i * 1000.5, -i, i % 2 == 0 ? "a" : "b");
  return table + "100,-1000,b\n";
}

const std::string grouped = R"(<frame><label id="title">Title</label></frame>
  <element type="point" id="points"><x variable="v1"/><y variable="v2"/>
  <color variable="v3" id="by"/></element>)";
const std::string line =
    R"(<element type="line" id="l"><x variable="v1"/><y variable="v2"/></element>)";
const std::string overCategories =
    R"(<element type="interval" id="i"><x variable="v3"/><y variable="v2"/></element>)";

TEST(Describe, TellsKindRangesGroupsTrendAndOutliersInTheChartsLanguage) {
  EXPECT_EQ(describe(grouped, fallingRows(), "en"),
            "Title. What it is about. Scatter plot. x axis: A label from 0 to 11,006. y axis: b "
            "from -1,000 to 0. Groups by Group, with the number of rows: Ä (6), b (7). Trend: "
            "rising, correlation 0.39. Correlations within groups: Ä: -1, b: 0.54. Outliers in b: "
            "1.");
  EXPECT_EQ(describe(line, "A,B,Group\n0,3,a\n1,2,a\n2.5,0,a\n", "de"),
            "What it is about. Liniendiagramm. x-Achse: A label von 0 bis 2,5. y-Achse: b von 0 "
            "bis 3. Werte: 0: 3; 1: 2; 2,5: 0. Verlauf: fallend, Korrelation -0,997.");
  EXPECT_EQ(describe(line, "A,B,Group\n0,1,a\n1,1,a\n2,1,a\n", "ja"),
            "What it is about. 折れ線グラフ。x軸: A label、0から2まで。y軸: b、常に1。値: 0: 1、1: "
            "1、2: 1。");
}

/// Without title and description, which are the same for all.
std::string sentences(std::string_view plot, std::string_view table) {
  const std::string text = describe(plot, table, "en");
  return text.substr(std::string_view("What it is about. ").size());
}

constexpr std::string_view sales = "A,B,Group\n1,10,b\n1,20,a\n2,30,b\n2,45,a\n3,4,b\n9,5,b\n";

TEST(Describe, TellsEachKindWithItsVariablesAndValues) {
  const std::pair<const char*, const char*> cases[] = {
      {R"(<element type="interval" id="i"><x variable="v1"/><statistic method="histogram">
          <parameter name="bin-width" value="5"/></statistic></element>
          <element type="line" id="l"><x variable="v1"/><statistic method="distribution"/></element>)",
       "Histogram. With: normal curve. x axis: A label from 1 to 9. y axis: Count from 1 to 5. "
       "Fullest bin: 5, from 0 to 5."},
      {R"(<element type="schema" id="i"><x variable="v3"/><y variable="v2"/></element>)",
       "Box plot. x axis: Group (Ä, b). y axis: b from 4 to 45. Medians: Ä: 32.5, b: 7.5."},
      {R"(<coordinateTransform method="polar"/><element type="interval" id="i">
          <theta variable="v2"/><color variable="v3"/><statistic method="sum"/></element>)",
       "Pie chart. Pieces by Group: Ä: 65 (57%), b: 49 (43%)."},
      {R"(<element type="interval" id="i" positionModifier="dodge"><x variable="v3"/>
          <y variable="v2"/><color variable="v3"/><statistic method="mean"/></element>
          <element type="point" id="p"><x variable="v3"/><y variable="v2"/></element>
          <guide type="line" id="g"><parameter name="y" value="20"/></guide>
          <guide type="function" id="f" name="F"><parameter name="y" value="x"/></guide>)",
       "Clustered bar chart. With: points, reference lines (y = 20). x axis: Group (Ä, b). y axis: "
       "b from 4 to 45. Values: Ä: 32.5, b: 12.25."},
      {R"(<dimension role="x"><axis><label id="axis">Weeks</label></axis></dimension>
          <element type="area" id="a" positionModifier="stack"><x variable="v1"/><y variable="v2"/>
          <color variable="v3"/></element>)",
       "Stacked area chart. x axis: Weeks from 1 to 9. y axis: b from 0 to 75. Groups by Group: "
       "Ä, b. Values: 1, Ä: 20; 1, b: 10; 2, Ä: 45; 2, b: 30; 3, Ä: 0; 3, b: 4; 9, Ä: 0; 9, b: "
       "5."},
      {R"(<element type="tile" id="t"><x variable="v3"/><y variable="v3"/><color variable="v2"/>
          </element>)",
       "Heat map. x axis: Group (Ä, b). y axis: Group (Ä, b). Color: b from 4 to 45. Highest: 45 "
       "(Ä, Ä); lowest: 4 (b, b)."},
      {R"(<coordinateTransform method="rectangular"/><element type="point" id="p">
          <x variable="v1"/><y variable="v2"/><z variable="v1"/></element>)",
       "Three-dimensional scatter plot. x axis: A label from 1 to 9. y axis: b from 4 to 45. z "
       "axis: A label from 1 to 9. Strongest correlation: A label and b, -0.43."},
      {R"(<tableFacet><facetVariable role="x" variable="v3"/></tableFacet><element type="line"
          id="l"><x variable="v1"/><y variable="v2"/></element>)",
       "Line chart. 2 panels, by Group (Ä, b). x axis: A label from 1 to 9. y axis: b from 4 to "
       "45. Values: Ä, 1: 20; Ä, 2: 45; b, 1: 10; b, 2: 30; b, 3: 4; b, 9: 5. Trend: falling, "
       "correlation -0.43."},
      {R"(<element type="area" id="element_survival_line_2"><x variable="v1"/><y variable="r"/>
          <color variable="v3"/></element><element type="line" id="element_survival_line_1">
          <x variable="v1"/><y variable="v2"/><color variable="v3"/></element><element type="point"
          id="element_survival_censored_1"><x variable="v1"/><y variable="v2"/></element>)",
       "Survival curves. With: bands, censored cases. x axis: A label from 1 to 9. y axis: A label "
       "from 1 to 45. Groups by Group: Ä, b. At the end: Ä: 45, b: 5."},
      {R"(<element type="line" id="controlchart_line" name="Means"><x variable="v1"/><y variable="v2"/></element>
          <element type="line" id="controlchart_UCL" name="Limit"><x variable="v1"/><y variable="c"/>
          </element><element type="point" id="controlchart_marker"><x variable="v1"/>
          <y variable="v2"/></element>)",
       "Control chart. With: lines (Means, Limit: 40); points. x axis: A label from 1 to 9. y "
       "axis: b, c "
       "from 4 to 45. Values: 1: 10, 1: 20, 2: 30, 2: 45, 3: 4, 9: 5."},
      {R"(<dimension role="x"><scale method="log"/></dimension><element type="area" id="a">
          <x variable="v1"/><y variable="r"/></element><element type="line" id="l">
          <x variable="v1"/><y variable="v1"/></element><element type="point" id="p">
          <x variable="v1"/><y variable="v2"/></element>)",
       "Scatter plot. With: bands, lines. x axis: A label from 1 to 9, logarithmic scale. y axis: "
       "A label from 1 to 45. Trend: falling, correlation -0.33 on these scales."},
  };
  for (const auto& [plot, text] : cases)
    EXPECT_EQ(sentences(plot, sales), text) << plot;
}

TEST(Describe, TellsNumbersAsTheAxisShowsThem) {
  const auto bars =
      R"(<element type="interval" id="i"><x variable="m"/><y variable="v3"/></element>)";
  EXPECT_EQ(
      sentences(bars, "A,B,Group\n0,-3,a\n0,2,b\n0,-4.5,c\n"),
      "Back-to-back bar chart. x axis: m from 2 to 4.5. y axis: Group (Ä, b, c). Values: Ä: 3, "
      "b: 2, c: 4.5.");
}

TEST(Describe, NamesTheEndsOfManyValuesAndSeparatesLabelsWithCommas) {
  const auto bars = R"(<element type="interval" id="i"><x variable="v3"/><y variable="v2"/>
                       </element>)";
  std::string table = "A,B,Group\n";
  for (int i = 0; i < 13; ++i)
    table += fmt::format("0,{},g{}\n", i * i - 6 * i, i);
  EXPECT_EQ(sentences(bars, table),
            "Bar chart. x axis: Group (g0, g1, g10, g11, g12, g2, g3, g4, g5, g6, g7, g8 and 1 "
            "more). y axis: b from -9 to 72. Highest: 72 (g12); lowest: -9 (g3).");
  EXPECT_EQ(sentences(bars, "A,B,Group\n0,1500,y\n0,2, \n"),
            "Bar chart. x axis: Group (y). y axis: b from 2 to 1,500. Values: y: 1,500.");
  EXPECT_EQ(sentences(bars, "A,B,Group\n0,1,\"y, z\"\n0,2,x\n"),
            "Bar chart. x axis: Group (x; y, z). y axis: b from 1 to 2. Values: x: 2; y, z: 1.");
}

TEST(Describe, TakesTheNameOfAChartThatSaysNothing) {
  const TestFolder folder;
  folder.write("chart.xml", "<graph/>").write("manifest.json", R"({"name": "only"})");
  EXPECT_EQ(folder.spec()["description"], "only");
}

TEST(RoundedText, HasFourDigitsAndTheSignsOfTheLanguage) {
  const render::NumberSigns german{.decimal = ",", .grouping = "."};
  const std::pair<double, const char*> cases[] = {
      {0, "0"},
      {-0.0000001, "-1e-07"},
      {0.123456, "0,1235"},
      {-12.3456, "-12,35"},
      {1000, "1.000"},
      {-1234567.8, "-1.234.568"},
      {999.96, "1.000"},
      {1e20, "1e+20"},
      {100, "100"},
      {-100, "-100"},
  };
  for (const auto& [value, text] : cases)
    EXPECT_EQ(render::roundedText(value, german), text);
}

TEST(PlainValue, ShowsDatesToTheirResolutionAndDurationsAsClocks) {
  using Part = render::DateFormat::Part;
  render::Manifest manifest{.name = "n"};
  const auto shown = [&manifest](std::vector<render::DateFormat::ShownPart> date,
                                 std::vector<render::DateFormat::ShownPart> time, double value) {
    render::DateFormat format;
    format.date = std::move(date);
    format.time = std::move(time);
    return render::PlainValue(render::Format(format), manifest)(value);
  };
  constexpr double newYear = 13166064000; // of 2000
  EXPECT_EQ(shown({{.part = Part::year}}, {}, newYear), "2000");
  EXPECT_EQ(shown({{.part = Part::monthName}, {.part = Part::year}}, {}, newYear), "January 2000");
  EXPECT_EQ(shown({{.part = Part::dayOfMonth}}, {}, newYear), "January 1, 2000");
  EXPECT_EQ(shown({}, {{.part = Part::hour}, {.part = Part::minute}}, -3661), "-1:01:01");
  manifest.language = "de";
  EXPECT_EQ(shown({{.part = Part::dayOfMonth}}, {}, newYear), "1. Januar 2000");
}

TEST(Words, ReplaceTheirParametersOnce) {
  const render::Words words("en");
  EXPECT_EQ(words("Position^3", {"^2", "b", "c"}), "^2 (b of c)");
  EXPECT_EQ(words("Position^3", {"a"}), "a (^2 of ^3)");
  EXPECT_EQ(words("no such^1 key^", {"x"}), "no suchx key^");
  EXPECT_EQ(render::Words("xx")("Data"), "Data");
}

} // namespace
