// Scales: what values they hold, how they lay them out, and the ticks along them.

#include <regex>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"

namespace {

using nlohmann::json;
using testing::Contains;

class ScalesTest : public testing::Test {
protected:
  /// A chart whose x or y dimension has the given attributes and content.
  json drawn(std::string_view role, std::string_view attributes, std::string_view content,
             std::string_view element = point, std::string_view rest = "",
             std::string_view table = values) {
    const std::string plot = fmt::format(R"(<dimension role="{}" {}>{}<axis id="a"><majorTicks/>
      </axis></dimension>{})",
                                         role, attributes, content, element);
    spec_ = folder_.write("chart.xml", document(plot, rest)).write("source0.csv", table).spec();
    return scale(role);
  }

  json scale(std::string_view name) const {
    for (const json& each : spec_["marks"][0]["scales"])
      if (each["name"] == name) return each;
    return {};
  }
  json ticks() const { return spec_["marks"][0]["axes"][0]["values"]; }
  json notes() const { return spec_["usermeta"]["notes"]; }

  static constexpr std::string_view values = "A,B,Group\n1,10,b\n10,20,a\n1000,30,c\n100,60,a\n";
  static constexpr std::string_view noMargins = R"(lowerMargin="0%" upperMargin="0%")";

  TestFolder folder_;
  json spec_;
};

std::string scaleNode(std::string_view method, std::string_view parameters,
                      std::string_view attributes = "") {
  return fmt::format(R"(<scale method="{}" {}>{}</scale>)", method, attributes, parameters);
}

constexpr std::string_view base10 = R"(<parameter name="base" value="10"/>)";
constexpr std::string_view safe = R"(<parameter name="safe" value="true"/>)";

TEST_F(ScalesTest, ALogarithmHasItsMarginsAndTicksInPowers) {
  const json scale = drawn("x", R"(lowerMargin="0%" upperMargin="100%")", scaleNode("log", base10));
  EXPECT_EQ(scale["type"], "log");
  EXPECT_EQ(scale["base"], 10);
  EXPECT_EQ(scale["domain"][0], 1);
  EXPECT_NEAR(scale["domain"][1].get<double>(), 1e6, 1e-6);
  EXPECT_THAT(ticks().dump(), testing::StartsWith("[1,10,100,1000,10000,100000"));
}

TEST_F(ScalesTest, ALabelOfANumberStandsInItsPlaceAtTicksInTooltipsAndInTheTable) {
  constexpr std::string_view labelled =
      R"(<variable id="v5" sourceName="A" source="source0" categorical="false" label="Men left">
      <relabel from="-10" to="ten"/><relabel from="5" to="five"/><relabel from="x" to="y"/>
      </variable>)";
  drawn("x", noMargins, "",
        R"(<element type="point" id="e"><x variable="v5"/><y variable="v2"/></element>)", labelled,
        "A,B,Group\n-10,1,a\n10,2,a\n");
  const auto textOf = [](const std::string& value, const std::string& otherwise) {
    return fmt::format(R"((indexof([(-10),5],{0})<0?{1}:["ten","five"][indexof([(-10),5],{0})]))",
                       value, otherwise);
  };
  const json& labels = spec_["marks"][0]["axes"][0]["encode"]["labels"]["update"];
  EXPECT_EQ(labels["text"]["signal"], textOf("datum.value", "format(datum.value,\".0f\")"));
  const std::string datum = R"(datum["v5"])";
  const std::string plain = spec_["usermeta"]["columns"][0]["text"]; // that of v2, without labels
  const std::string otherwise = std::regex_replace(plain, std::regex("v2"), "v5");
  EXPECT_EQ(spec_["usermeta"]["columns"][1]["text"], textOf(datum, otherwise));
  const std::string tooltip =
      spec_["marks"][0]["marks"][0]["encode"]["update"]["tooltip"]["signal"];
  EXPECT_THAT(tooltip, testing::HasSubstr(textOf(datum, otherwise)));
}

TEST_F(ScalesTest, LabelsOfCategoriesLieAsTheyFitAndWhatHasNoRoomIsToldOf) {
  const struct {
    std::size_t count;
    const char* asked;
    json angle, overlap;
    std::size_t every;
  } cases[] = {{4, "", {}, {}, 1},
               {20, "", -45, false, 1},
               {40, "", -90, false, 1},
               {120, "", -90, false, 3},
               {40, "-30", -30, false, 2}};
  for (const auto& [count, asked, angle, overlap, every] : cases) {
    std::string table = "A,B,Group\n";
    for (std::size_t i = 0; i < count; ++i)
      table += fmt::format("1,1,a category with a long name {:03}\n", i);
    const std::string plot = fmt::format(R"(<dimension role="x"><axis><majorTicks labelAngle="{}"/>
      </axis></dimension><element type="point" id="e"><x variable="v3"/><y variable="v2"/></element>)",
                                         asked);
    spec_ = folder_.write("chart.xml", document(plot)).write("source0.csv", table).spec();
    const json& axis = spec_["marks"][0]["axes"][0];
    EXPECT_EQ(axis.value("labelAngle", json()), angle) << count;
    EXPECT_EQ(axis.value("labelOverlap", json()), overlap) << count;
    const json notes = spec_["usermeta"].value("notes", json::array());
    ASSERT_EQ(notes.size(), every == 1 ? 0 : 1) << notes;
    if (every == 1) continue;
    EXPECT_EQ(axis["values"].size(), (count + every - 1) / every);
    EXPECT_EQ(axis["values"][1], fmt::format("a category with a long name {:03}", every));
    EXPECT_EQ(notes[0],
              fmt::format("x: there is room for the labels of {} of {} categories, one in {}",
                          axis["values"].size(), count, every));
  }
}

TEST_F(ScalesTest, ALogarithmHasMinorTicksBetweenItsPowersAndDecimalsAsEachTickNeeds) {
  const std::string plot =
      R"(<dimension role="x" lowerMargin="0%" upperMargin="0%">)" + scaleNode("log", base10) +
      R"(<axis id="a"><majorTicks/><minorTicks number="8"/></axis></dimension>)";
  spec_ = folder_.write("chart.xml", document(plot + std::string(point)))
              .write("source0.csv", "A,B,Group\n0.5,1,a\n30,2,a\n")
              .spec();
  const json axes = spec_["marks"][0]["axes"];
  ASSERT_EQ(axes.size(), 2U);
  EXPECT_EQ(notes(), json::array());
  std::string places;
  for (const json& place : axes[0]["values"])
    places += fmt::format("{:g} ", place.get<double>());
  EXPECT_EQ(places, "0.5 0.6 0.7 0.8 0.9 2 3 4 5 6 7 8 9 20 30 ");
  const std::string text = axes[1]["encode"]["labels"]["update"]["text"]["signal"];
  EXPECT_THAT(text, testing::HasSubstr("replace(")) << "zeros at the end are taken off";
}

TEST_F(ScalesTest, ASafeLogarithmGoesThroughZeroAndAnUnsafeOneLeavesValuesOut) {
  constexpr std::string_view table = "A,B,Group\n-10,1,a\n0,2,a\n1000,3,a\n";
  const json through = drawn(
      "x", noMargins, scaleNode("log", std::string(base10) + std::string(safe)), point, "", table);
  EXPECT_EQ(through["type"], "symlog");
  EXPECT_EQ(through["domain"], json({-10, 1000}));
  EXPECT_EQ(ticks(), json({-10, -1, 0, 1, 10, 100, 1000}));

  const json above = drawn("x", noMargins, scaleNode("log", base10), point, "",
                           "A,B,Group\n-10,1,a\n0,2,a\n1000,3,a\n10,4,a\n");
  EXPECT_EQ(above["type"], "log");
  EXPECT_EQ(above["domain"], json({10, 1000}));
  const std::string filter = spec_["data"][1]["transform"][0]["expr"];
  EXPECT_THAT(filter, testing::EndsWith(R"( && datum["v1"]>0)"));
}

TEST_F(ScalesTest, ALogarithmWithoutValuesStillHasAScale) {
  for (const char* table : {"A,B,Group\n", "A,B,Group\n-1,2,a\n0,2,a\n"})
    EXPECT_EQ(drawn("x", noMargins, scaleNode("log", base10), point, "", table)["domain"],
              json({1, 10}))
        << table;
}

TEST_F(ScalesTest, ABinWithoutALogarithmBeginsWhereTheScaleDoes) {
  const json scale =
      drawn("x", noMargins, scaleNode("log", base10),
            R"(<element type="interval" id="e"><x variable="v1"/><statistic method="histogram">
         <parameter name="bin-width" value="50"/></statistic></element>)",
            "", "A,B,Group\n-60,,a\n0.5,,a\n3,,a\n40,,a\n60,,a\n");
  EXPECT_EQ(scale["domain"], json({0.5, 100}));
  const json& update = spec_["marks"][0]["marks"][0]["encode"]["update"];
  EXPECT_EQ(update["x"]["signal"], "max(datum.from,0.5)");
  json bins = json::array();
  for (const json& row : spec_["data"][1]["values"])
    bins.push_back({row["from"], row["to"], row["high"]});
  EXPECT_EQ(bins, json::parse("[[0,50,3],[50,100,1]]"));
  EXPECT_EQ(notes(), json({"e: a bar from 0 to 50 along x has no logarithm where it begins, and "
                           "begins where the scale does",
                           "data/dimension/scale: marks along x at zero or less, where there is "
                           "no logarithm: 1, which are left out; make the scale safe, linear or a "
                           "power, or draw what is "
                           "above zero"}));
}

TEST_F(ScalesTest, APowerIsDrawnAndAScaleInverted) {
  const json scale =
      drawn("x", noMargins,
            scaleNode("power", R"(<parameter name="exponent" value="2"/>)", R"(invert="true")"));
  EXPECT_EQ(scale["type"], "pow");
  EXPECT_EQ(scale["exponent"], 2);
  EXPECT_EQ(scale["reverse"], true);
  drawn("x", noMargins, scaleNode("power", R"(<parameter name="exponent" value="-2"/>)"));
  EXPECT_THAT(notes(), Contains("scale: exponent=\"-2\" is not drawn: 0.5 takes its place"));
}

TEST_F(ScalesTest, ADomainFixesTheEndsThatItsIntervalsName) {
  const struct {
    const char* content;
    json ends;
  } cases[] = {
      {R"(<interval min="0" max="2000"/>)", {0, 2000}},
      {R"(<interval min="0" max="5"/><interval min="3" max="1500"/>)", {0, 1500}},
      {R"(<interval min="-5" max="auto"/>)", {-5, 1000}},
      {R"(<domainReference domain="v2"/><domainReference domain="d"/>)", {1, 1000}},
      {R"(<interval min="9" max="2"/>)", {1, 1000}},
  };
  for (const auto& [content, ends] : cases)
    EXPECT_EQ(
        drawn("x", fmt::format(R"({} domain="d")", noMargins), "", point,
              fmt::format(R"(<domain id="d" categorical="false">{}</domain>)", content))["domain"],
        ends)
        << content;
  EXPECT_THAT(notes(), Contains("d is not drawn: it ends before it begins"));
}

TEST_F(ScalesTest, ASortOrdersCategories) {
  const struct {
    const char* sort;
    json order;
  } cases[] = {
      {"<sort/>", {"a", "b", "c", "d"}},
      {R"(<sort descending="true"/>)", {"d", "c", "b", "a"}},
      {R"(<sort><simpleSort method="data"/></sort>)", {"b", "a", "c", "d"}},
      {R"(<sort><statisticSort sourceVariable="v3" statVariable="v2"/></sort>)",
       {"b", "d", "c", "a"}},
      {R"(<sort descending="true"><statisticSort sourceVariable="v3" statVariable="v2"/></sort>)",
       {"a", "c", "b", "d"}},
      {R"(<sort descending="true"><statisticSort sourceVariable="v3" statVariable="v1"/></sort>)",
       {"c", "a", "b", "d"}},
  };
  const std::string table = std::string(values) + ",10,d\n";
  for (const auto& [sort, order] : cases)
    EXPECT_EQ(
        drawn("x", R"(domain="d")", "",
              R"(<element type="interval" id="e"><x variable="v3"/><y variable="v2"/></element>)",
              fmt::format(R"(<domain id="d" categorical="true">{}</domain>)", sort),
              table)["domain"],
        order)
        << sort;
}

TEST_F(ScalesTest, MappingsAndATransposedPlotPlaceTheEndsOfAScale) {
  EXPECT_EQ(drawn("x", R"(lowerMapping="25%" upperMapping="75%")", "")["range"], json({180, 540}));
  const std::string transposed =
      std::string(point) + R"(<coordinateTransform method="transpose"/>)";
  EXPECT_EQ(drawn("x", "", "", transposed)["range"], "height");
  EXPECT_EQ(scale("y")["range"], "width");
  EXPECT_EQ(spec_["marks"][0]["axes"][0]["orient"], "left");
  EXPECT_EQ(spec_["marks"][0]["marks"][0]["encode"]["update"]["y"]["scale"], "x");
}

TEST_F(ScalesTest, AUnitIsAsLongOnBothDimensionsAboutTheMiddleOfTheValues) {
  drawn("x", std::string(noMargins) + R"( sameRatio="trueCentered")", "",
        std::string(point) + R"(<dimension role="y" lowerMargin="0%" upperMargin="0%"/>)");
  const json x = scale("x")["domain"];
  const json y = scale("y")["domain"];
  EXPECT_EQ(x, json({1, 1000}));
  // 999 along 720 pixels are 666 along 480.
  EXPECT_NEAR(y[1].get<double>() - y[0].get<double>(), 666, 1e-9);
  EXPECT_NEAR(y[1].get<double>() + y[0].get<double>(), 70, 1e-9);
}

TEST_F(ScalesTest, TicksStandAtMultiplesOfDelta) {
  folder_
      .write("chart.xml", document(std::string(R"(<dimension role="x" lowerMargin="0%"
    upperMargin="0%"><axis id="a"><majorTicks delta="0.3" labelAngle="-90"/></axis></dimension>)") +
                                   std::string(point)))
      .write("source0.csv", "A,B,Group\n0.5,1,a\n1.5,2,a\n");
  spec_ = folder_.spec();
  const json places = ticks();
  ASSERT_EQ(places.size(), 4U);
  EXPECT_NEAR(places[0].get<double>(), 0.6, 1e-12);
  EXPECT_NEAR(places[3].get<double>(), 1.5, 1e-12);
  EXPECT_EQ(spec_["marks"][0]["axes"][0]["labelAngle"], -90);
}

TEST_F(ScalesTest, AnAxisHasAFormatOfItsOwnPercentagesAndMinorTicks) {
  folder_
      .write("chart.xml", document(std::string(R"(<dimension role="x" lowerMargin="0%"
    upperMargin="0%"><axis id="a"><majorTicks delta="0.5"/><transform method="percent"/><minorTicks
    number="4"/><numberFormat suffix="%"/></axis></dimension>)") +
                                   std::string(point)))
      .write("source0.csv", "A,B,Group\n0.45,1,a\n1,2,a\n");
  spec_ = folder_.spec();
  const json axes = spec_["marks"][0]["axes"];
  ASSERT_EQ(axes.size(), 2U);
  EXPECT_EQ(axes[0]["values"], json({0.5, 0.6, 0.7, 0.8, 0.9, 1}));
  EXPECT_EQ(axes[1]["values"], json({0.5, 1}));
  const std::string text = axes[1]["encode"]["labels"]["update"]["text"]["signal"];
  EXPECT_THAT(text, testing::HasSubstr("datum.value*100"));
  EXPECT_THAT(text, testing::HasSubstr("\"%\""));
  EXPECT_EQ(notes(), json::array());
}

} // namespace
