#include <cmath>
#include <limits>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <host/ChartFiles.h>
#include <host/DataSet.h>
#include <host/Missing.h>

#include "OutputTest.h"

namespace {

using Texts = std::map<std::string, std::string>;
constexpr double infinity = std::numeric_limits<double>::infinity();

class ChartFiles : public OutputTest {
protected:
  VarDataProcessor::_varinfo column(const std::string& name, const CTVariableTexts& texts = {},
                                    const std::vector<CTFormatType>& formats = {}) {
    VarDataProcessor::_varinfo made;
    columns.AddDataSource("source0", 0);
    columns.AddVariable("source0", name, made);
    CTVariableTexts described = texts;
    described.source = "source0";
    described.sourceName = name;
    visualization.addVariable(described, formats);
    data = &columns;
    return made;
  }

  VarDataProcessor columns;
};

CTVariableTexts labelled(const std::string& label,
                         std::vector<std::pair<std::string, std::string>> categories = {}) {
  CTVariableTexts texts;
  texts.label = label;
  texts.categories = std::move(categories);
  return texts;
}

std::string described(const KORVA_Variable& variable) {
  const KORVA_Format format = variable.GetFormat();
  std::string text = std::string(variable.GetName()) + "|" + variable.GetLabel();
  for (const int part : {variable.GetType(), format.TypeEx(), format.Width(), format.Decimals()})
    text.append("|").append(std::to_string(part));
  return text;
}

std::vector<CTFormatType> dates(std::vector<CTFormatType> parts) {
  return {{"dateTimeFormat", {}, {{"dateFormat", {}, std::move(parts)}, {"timeFormat", {}, {}}}}};
}

TEST_F(ChartFiles, open_again_as_a_data_set) {
  const auto number =
      column("V1", labelled("Länge \"mm\"", {{"1", "one"}, {"x", "no value"}, {"1.0", "twice"}}),
             {{"numberFormat", {{"minimumFractionDigits", "2"}, {"prefix", "$"}}, {}}});
  const auto text = column("V2", labelled("", {{"a", "A"}, {"a ", "twice"}, {"b,\n", "B"}}));
  const auto date = column("V3", labelled("Day"), dates({{"monthName", {}, {}}, {"year", {}, {}}}));
  const double numbers[] = {0.1, infinity, -infinity, std::nan(""), host::systemMissing};
  for (std::size_t row = 0; row < std::size(numbers); ++row)
    columns.SetVariableValue(number, row, numbers[row]);
  columns.SetStringVariableValue(text, 0, "b,\n");
  columns.SetStringVariableValue(text, 1, "");
  columns.SetVariableValue(date, 4, 13166064000);
  send("chart");

  const auto again = host::DataSet::open(output / "0001-chart");
  EXPECT_EQ(again->rowCount(), 5U);
  EXPECT_EQ(described(again->GetVariable(0)), "V1|Länge \"mm\"|0|4|40|2");
  EXPECT_EQ(described(again->GetVariable(1)), "V2||3|1|3|0");
  EXPECT_EQ(described(again->GetVariable(2)), "V3|Day|0|28|8|0");
  EXPECT_EQ(again->GetVariable(0).GetValueLabels().Size(), 1);
  EXPECT_EQ(again->GetVariable(1).GetValueLabels().Size(), 2);
  std::vector<OBS> cells(again->cellsPerRow());
  for (std::size_t row = 0; row < std::size(numbers); ++row) {
    again->readRow(row, cells);
    if (std::isnan(numbers[row]))
      EXPECT_TRUE(std::isnan(cells[0].number)) << row;
    else
      EXPECT_EQ(cells[0].number, numbers[row]) << row;
    EXPECT_EQ(cells[2].number, row == 4 ? 13166064000 : host::systemMissing) << row;
  }
}

TEST_F(ChartFiles, are_listed_with_their_hashes_and_what_made_them) {
  const auto number = column("V1");
  columns.SetVariableValue(number, 0, 1);
  host::PageWriter pages;
  pages.writeChart = [](const std::filesystem::path& folder) {
    std::ofstream(folder / "chart.html") << "abc";
    return Findings();
  };
  pages.versions = {{"renderer", "7"}};
  send("chart", pages);
  const auto folder = output / "0001-chart";
  const host::ChartFiles files = host::readChartFiles(folder);
  EXPECT_EQ(files.versions.at("renderer"), "7");
  EXPECT_EQ(files.files.at("chart.html"),
            "sha256:ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  Texts found;
  for (const std::string& name : host::filesIn(folder))
    found.emplace(name, host::hashOf(folder / name));
  EXPECT_EQ(files.files, found);
  EXPECT_EQ(found.size(), 4U);
}

TEST_F(ChartFiles, are_listed_anew_without_touching_the_rest_of_the_manifest) {
  const std::string begin = R"({
  "a": 0.10,
  "b": [
    {},
    [],
    -1e+300,
    12345678901234567890,
    null,
    true
  ],
  "é\n": {
    "files": {
      "kept": ""
    }
  })";
  const std::string folder = scratch.path().native();
  scratch.write("manifest.json", begin + R"(, "files": {"old": [1, {"x": 2}]}, "errors": ["e"],
                                          "findings": [{"check": "old"}]})");
  const host::Finding known{
      .check = "c", .node = "e/x", .call = 7, .callName = "cx_addx_", .text = "t"};
  const host::Finding unknown{.check = "d", .node = "", .text = "u"};
  host::writeChartFiles(folder, {{}, {{"library", "1"}}, {{"n", "sha256:0"}}, {known, unknown}});
  EXPECT_EQ(read(folder + "/manifest.json"), begin + R"(,
  "errors": [],
  "findings": [
    {
      "check": "c",
      "node": "e/x",
      "call": 7,
      "name": "cx_addx_",
      "text": "t"
    },
    {
      "check": "d",
      "node": "",
      "text": "u"
    }
  ],
  "versions": {
    "library": "1"
  },
  "files": {
    "n": "sha256:0"
  }
}
)");
  scratch.write("manifest.json", "[1");
  EXPECT_THROW(host::writeChartFiles(folder, {}), host::DataError);
  EXPECT_EQ(names(folder), std::vector<std::string>{"manifest.json"});
}

} // namespace
