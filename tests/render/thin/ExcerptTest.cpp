#include <algorithm>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"
#include "thin/Excerpt.h"

namespace {

using nlohmann::json;

const std::string grouped = R"(<element type="point" id="points"><x variable="v1"/>
  <y variable="v2"/><styleBy variable="v3" id="by" styleCycle="c"/></element>)";
const std::string unused = R"(<variable id="v4" sourceName="A" source="source0" label="Unused"/>)";

/// A row for each number below the count. Values rise, but for two that stand out and one
/// that is missing; one row is alone in its group.
std::string rows(std::size_t count) {
  std::string table = "A,B,Group\n";
  for (std::size_t i = 0; i < count; ++i) {
    if (i == 7) table += "7,,a\n";
    if (i == 11) table += "11,-5,a\n";
    if (i == 13) table += "13,999999,a\n";
    if (i == 17) table += "17,17,rare\n";
    if (i != 7 && i != 11 && i != 13 && i != 17) table += fmt::format("{0},{0},a\n", i);
  }
  return table;
}

json specOf(std::size_t count) {
  const TestFolder folder;
  return folder.write("chart.xml", document(grouped, unused))
      .write("source0.csv", rows(count))
      .spec();
}

TEST(Excerpt, HoldsEveryRowUpToTheLimitAndTheVariablesThatAreReferredTo) {
  const json values = specOf(render::mostRows)["data"][0]["values"];
  EXPECT_EQ(values.size(), render::mostRows);
  EXPECT_EQ(values[7], json::parse(R"({"v1": 7, "v2": null, "v3": "a"})"));
}

TEST(Excerpt, ThinsMoreRowsEvenlyAndKeepsExtremesAndGroups) {
  constexpr std::size_t count = render::mostRows * 5;
  const json spec = specOf(count);
  const json values = spec["data"][0]["values"];
  ASSERT_EQ(values.size(), render::mostRows);
  const auto holds = [&values](int x) {
    return std::ranges::any_of(values, [x](const json& row) { return row["v1"] == x; });
  };
  for (const int x : {0, 11, 13, 17, static_cast<int>(count) - 1})
    EXPECT_TRUE(holds(x)) << x;
  EXPECT_FALSE(holds(7)) << "a row that is not drawn";
  for (std::size_t i = 1; i < values.size(); ++i)
    ASSERT_LE(values[i]["v1"].get<int>() - values[i - 1]["v1"].get<int>(), 6) << i;
  EXPECT_EQ(spec["usermeta"]["notes"].back(),
            "The picture and its page hold 20,000 of 99,999 rows, taken at even distances, the "
            "extremes among them. All are in the CSV file beside the page.");
  EXPECT_TRUE(specOf(count)["data"] == spec["data"]);
}

TEST(Excerpt, KeepsTheExtremesOfEachVariableOfAMatrix) {
  const TestFolder folder;
  const json spec =
      folder
          .write("chart.xml",
                 document(
                     R"(<element type="point" id="e"><x variable="m"/><y variable="m"/></element>)",
                     R"(<variable id="m" expression="v1/l1 + v2/l2" categorical="false"/>)"))
          .write("source0.csv", rows(render::mostRows * 5))
          .spec();
  const json values = spec["data"][0]["values"];
  EXPECT_EQ(values.size(), render::mostRows);
  for (const int y : {-5, 999999})
    EXPECT_TRUE(std::ranges::any_of(values, [y](const json& row) { return row["v2"] == y; })) << y;
}

TEST(Excerpt, HoldsTheRowsThatPanelsDrawOneByOneButNotThoseOfStatistics) {
  constexpr std::size_t count = render::mostRows * 2;
  const auto drawn = [&](const std::string& element) {
    const std::string facet = R"(<tableFacet><facetVariable role="x" variable="v3"/></tableFacet>)";
    const TestFolder folder;
    const json spec = folder.write("chart.xml", document(facet + element))
                          .write("source0.csv", rows(count))
                          .spec();
    std::vector<double> sums; // of items and of what they show, over the panels
    sums.assign(2, 0);
    for (const json& data : spec["data"])
      if (data["name"].get<std::string>().starts_with("e_"))
        for (const json& item : data["values"]) {
          sums[0] += 1;
          sums[1] += item.value("value", 0.0);
        }
    return sums;
  };
  EXPECT_EQ(
      drawn(R"(<element type="point" id="e"><x variable="v1"/><y variable="v2"/></element>)")[0],
      render::mostRows);
  EXPECT_EQ(drawn(R"(<element type="interval" id="e"><x variable="v3"/><statistic method="count"/>
    </element>)")[1],
            count);
}

TEST(Excerpt, LeavesExtentsAndDescriptionToAllRows) {
  const json spec = specOf(render::mostRows * 2);
  const std::string description = spec["description"];
  EXPECT_THAT(description, testing::HasSubstr("y axis: b from -5 to 999,999."));
  EXPECT_THAT(description,
              testing::HasSubstr("Groups by Group, with the number of rows: Ä (39,998); rare (1)"));
  EXPECT_LE(spec["marks"][0]["scales"][1]["domain"][0], -5);
}

} // namespace
