#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"
#include "text/PlainValue.h"
#include "text/Words.h"

namespace {

std::string describe(std::string_view plot, std::string_view table, std::string_view language) {
  const TestFolder folder;
  folder.write("chart.xml", document(plot))
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
            "from -1,000 to 0. Groups by Group, with rows: Ä (6), b (7). Trend: rising, "
            "correlation 0.39. Outliers in b: 1");
  EXPECT_EQ(describe(line, "A,B,Group\n0,3,a\n1,2,a\n2.5,0,a\n", "de"),
            "What it is about. Liniendiagramm. x-Achse: A label von 0 bis 2,5. y-Achse: b von 0 "
            "bis 3. Verlauf: fallend, Korrelation -1");
  EXPECT_EQ(describe(line, "A,B,Group\n0,1,a\n1,1,a\n2,1,a\n", "ja"),
            "What it is about.。折れ線グラフ。x軸: A label、0から2まで。y軸: b、1から1まで");
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
