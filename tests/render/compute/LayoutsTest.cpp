// Dots, stacks and contours, as numbers.

#include <array>
#include <cmath>
#include <map>

#include <gtest/gtest.h>

#include <fmt/format.h>

#include "render/support/ChartFolder.h"

namespace {

using nlohmann::json;

json drawn(std::string_view element, std::string_view table) {
  const json spec = TestFolder()
                        .write("chart.xml", document(element, R"(<variable id="v4" sourceName="Kind"
             source="source0" categorical="true"/>)"))
                        .write("source0.csv", table)
                        .spec();
  for (const json& data : spec["data"])
    if (data["name"] == "e") return data["values"];
  return spec["usermeta"]["notes"];
}

json fieldsOf(const json& rows, const std::vector<std::string>& fields) {
  json all = json::array();
  for (const json& row : rows) {
    json values = json::array();
    for (const std::string& field : fields)
      values.push_back(row.value(field, json()));
    all.push_back(std::move(values));
  }
  return all;
}

TEST(LayoutsTest, WhatStandsAtOnePlaceIsLaidOutAsTheElementSays) {
  constexpr std::string_view bars = "A,B,Group,Kind\n1,30,a,p\n1,10,a,q\n1,-6,a,r\n1,-2,a,s\n";
  // A sixtieth of the range from 0 to 60 is 1.
  constexpr std::string_view values = "A,B,Group,Kind\n0,,a,q\n0.5,,a,p\n1,,a,p\n60,,b,q\n";
  const auto bar = [](std::string_view modifier) {
    return fmt::format(R"(<element type="interval" id="e" positionModifier="{}">
      <x variable="v3"/><y variable="v2"/><styleBy variable="v4" id="s" styleCycle="c"/></element>)",
                       modifier);
  };
  const auto dots = [](std::string_view layout, std::string_view place) {
    return fmt::format(R"(<element type="point" id="e" dot="{}">{}
      <styleBy variable="v4" id="s" styleCycle="c"/></element>)",
                       layout, place);
  };
  const std::string onX = R"(<x variable="v1"/>)";
  const struct {
    std::string element;
    std::string_view table;
    std::vector<std::string> fields;
    const char* rows;
  } cases[] = {
      {bar("center"),
       bars,
       {"v4", "low", "high"},
       R"([["p",-16,14],["q",14,24],["r",-16,-22],["s",-22,-24]])"},
      {bar("minusIntersection"),
       bars,
       {"v4", "low", "high"},
       R"([["s",0,-2],["r",-2,-6],["q",0,10],["p",10,30]])"},
      {dots("auto", onX),
       values,
       {"place", "v4", "high"},
       R"([[0.25,"p",0.5],[0.25,"q",1.5],[1,"p",0.5],[60,"q",0.5]])"},
      {dots("negative", onX),
       values,
       {"place", "v4", "high"},
       R"([[0.25,"q",-1.5],[0.25,"p",-0.5],[1,"p",-0.5],[60,"q",-0.5]])"},
      {dots("center", R"(<y variable="v3"/>)"),
       values,
       {"v3", "v4", "high"},
       R"([["a","p",-1],["a","p",0],["a","q",1],["b","q",0]])"},
  };
  for (const auto& [element, table, fields, rows] : cases)
    EXPECT_EQ(fieldsOf(drawn(element, table), fields), json::parse(rows)) << element;
}

/// The density of some points with the stated kernels, computed straight.
class Density {
public:
  explicit Density(std::vector<std::array<double, 2>> points) : points_(std::move(points)) {
    for (const std::size_t side : {0U, 1U})
      bandwidths_[side] = 1.06 * spreadOf(side) * std::pow(points_.size(), -0.2);
  }

  double at(double x, double y) const {
    double sum = 0;
    for (const auto& point : points_) {
      const double dx = (x - point[0]) / bandwidths_[0];
      const double dy = (y - point[1]) / bandwidths_[1];
      sum += std::exp(-(dx * dx + dy * dy) / 2);
    }
    return sum;
  }

  double highest() const {
    double most = 0;
    for (double x = -2; x <= 6; x += 0.02)
      for (double y = -2; y <= 6; y += 0.02)
        most = std::max(most, at(x, y));
    return most;
  }

private:
  double spreadOf(std::size_t side) const {
    std::vector<double> values;
    double mean = 0;
    for (const auto& point : points_) {
      values.push_back(point[side]);
      mean += point[side] / static_cast<double>(points_.size());
    }
    std::ranges::sort(values);
    double squares = 0;
    for (const double value : values)
      squares += (value - mean) * (value - mean);
    const double deviation = std::sqrt(squares / (static_cast<double>(values.size()) - 1));
    const auto quantile = [&](double share) {
      const double rank = share * (static_cast<double>(values.size()) - 1);
      const auto below = static_cast<std::size_t>(rank);
      const double part = rank - std::floor(rank);
      return values[below] + part * (values[below + 1] - values[below]);
    };
    return std::min(deviation, (quantile(0.75) - quantile(0.25)) / 1.34);
  }

  std::vector<std::array<double, 2>> points_;
  std::array<double, 2> bandwidths_{};
};

TEST(LayoutsTest, ContoursRunWhereTheDensityIsAShareOfItsHighest) {
  const std::vector<std::array<double, 2>> points{{0, 0}, {1, 0.5}, {0.5, 1},   {4, 3},
                                                  {3, 4}, {3.5, 3}, {3.8, 3.6}, {1, 1}};
  std::string table = "A,B,Group\n";
  for (const auto& [x, y] : points)
    table += fmt::format("{},{},a\n", x, y);
  const json rows = drawn(R"(<element type="contour" id="e"><x variable="v1"/><y variable="v2"/>
    </element>)",
                          table);
  const Density density(points);
  const double highest = density.highest();
  std::map<int, std::pair<json, json>> ends; // of each line
  std::map<double, int> lines;
  for (const json& row : rows) {
    const double share = density.at(row["place"], row["high"]) / highest * 100;
    EXPECT_NEAR(share, row["value"].get<double>(), 0.5);
    const int member = row["member"];
    const auto [first, isFirst] = ends.try_emplace(member, row, row);
    if (isFirst) ++lines[row["value"]];
    first->second.second = row;
  }
  for (const auto& [member, pair] : ends)
    EXPECT_EQ(pair.first, pair.second) << "line " << member << " is closed";
  // As many as contourLines() of R finds.
  EXPECT_EQ(lines, (std::map<double, int>{{10, 1}, {30, 1}, {50, 2}, {70, 2}, {90, 2}}));
}

} // namespace
