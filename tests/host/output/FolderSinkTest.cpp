#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <host/ChartError.h>
#include <host/Missing.h>
#include <host/Settings.h>
#include <host/Version.h>
#include <nlohmann/json.hpp>

#include "OutputTest.h"

namespace {

using Names = std::vector<std::string>;

class FolderSink : public OutputTest {};

void addVariable(ZephVisualization& chart, const std::string& id, const std::string& source,
                 const std::string& sourceName) {
  CTVariableTexts texts{.id = id,
                        .sourceName = sourceName,
                        .source = source,
                        .label = "Label \"of\" " + id,
                        .shortLabel = id,
                        .categorical = sourceName == "V2" ? "true" : "false",
                        .description = {},
                        .categories = {}};
  std::vector<CTFormatType> formats;
  if (sourceName == "V2") texts.categories = {{"a", "\"A\""}, {"2", "two"}};
  if (sourceName == "V1")
    formats = {{"dateTimeFormat", {{"prefix", " WK "}}, {{"dateFormat", {}, {{"week", {}, {}}}}}}};
  chart.addVariable(texts, formats);
}

TEST_F(FolderSink, writes_the_same_files_for_the_same_chart) {
  VarDataProcessor columns;
  VarDataProcessor::_varinfo number;
  VarDataProcessor::_varinfo text;
  columns.AddDataSource("source0", 0);
  columns.AddDataSource("source1", 0);
  columns.AddVariable("source0", "V1", number);
  columns.AddVariable("source0", "V2", text);
  columns.SetVariableValue(number, 0, 0.1);
  columns.SetStringVariableValue(text, 0, "a\"b,c\nd");
  columns.SetStringVariableValue(text, 2, "ä");
  columns.SetVariableValue(number, 2, host::systemMissing);

  addVariable(visualization, "x", "source0", "V1");
  addVariable(visualization, "aggregate", "x", "V1");
  addVariable(visualization, "group", "source0", "V2");
  ZephExtensionSV& extension = visualization.getSourceVariables()[1].addExtension();
  extension.setAttribute("statistic", "mean");
  extension.setAttribute("statistic", "range");
  extension.setMin(1);
  extension.setMax(host::systemMissing);
  customizeCharts(visualization).customizeIciclePlots(true, 3);

  const std::string name = "Größe & Gewicht";
  const std::string xml(200000, 'x');
  const std::string description = "a\xFF\"";
  const std::string empty;
  const std::string language = "de";
  host::FolderSink sink({});
  CmnLoc::set({"·", ""});
  for (int i = 0; i < 2; ++i)
    sink.send({name, xml, description, empty, empty, language, visualization, &columns});
  CmnLoc::followLanguage();

  EXPECT_EQ(names(output), (Names{".lock", "0001-gr-e-gewicht", "0002-gr-e-gewicht"}));
  const auto folder = output / "0001-gr-e-gewicht";
  const Names files = {"chart.xml", "datapackage.json", "manifest.json", "source0.csv"};
  EXPECT_EQ(names(folder), files);
  for (const std::string& file : files)
    EXPECT_TRUE(read(folder / file) == read(output / "0002-gr-e-gewicht" / file)) << file;
  EXPECT_TRUE(read(folder / "chart.xml") == xml);
  EXPECT_EQ(read(folder / "source0.csv"), "V1,V2\n0.1,\"a\"\"b,c\nd\"\n,\n,ä\n");
  auto manifest = nlohmann::ordered_json::parse(read(folder / "manifest.json"));
  EXPECT_EQ(read(folder / "manifest.json"), manifest.dump(2) + "\n");
  manifest.erase("files");
  EXPECT_EQ(manifest.dump(), R"({"name":"Größe & Gewicht","description":"a�\"",)"
                             R"("splitHeader":"","template":"","language":"de",)"
                             R"("numberSigns":{"decimal":"·","grouping":""},)"
                             R"("type":"icicle","icicle":{"orientation":"horizontal","rows":3},)"
                             R"("sources":[{"name":"source0","file":"source0.csv","rows":3,)"
                             R"("columns":[{"name":"V1","variables":["x","aggregate"],)"
                             R"("label":"Label \"of\" x","shortLabel":"x",)"
                             R"("kind":"number","categorical":false,"format":{"dateTimeFormat":)"
                             R"({"dateFormat":{"week":{}},"prefix":" WK "}}},)"
                             R"({"name":"V2","variables":["group"],)"
                             R"("label":"Label \"of\" group","shortLabel":"group",)"
                             R"("kind":"string","categorical":true,"categories":[{"value":"a",)"
                             R"("label":"\"A\""},{"value":"2","label":"two"}]}]},)"
                             R"({"name":"source1","file":"","rows":0,"columns":[]}],)"
                             R"("statistics":{"aggregate":)"
                             R"({"statistic":"range","min":1.0,"max":null}},)"
                             R"("errors":[],"findings":[],"versions":{"library":")" +
                                 std::string(host::libraryVersion()) + R"("}})");
  EXPECT_EQ(reports, Names{});
}

// A computed variable names the variable that it stands on where others name their source.
TEST_F(FolderSink, describes_each_column_by_the_variables_of_its_source) {
  VarDataProcessor columns;
  VarDataProcessor::_varinfo column;
  for (const char* source : {"source0", "source1"}) {
    columns.AddDataSource(source, 0);
    columns.AddVariable(source, "casenum", column);
    columns.SetVariableValue(column, 0, 1);
  }
  for (const auto& [id, source] : {std::pair{"mean of mean", "mean"},
                                   {"mean", "base"},
                                   {"base", "source1"},
                                   {"lost", "nowhere"},
                                   {"circle", "circle"}})
    addVariable(visualization, id, source, "casenum");
  data = &columns;
  send("two");
  const auto manifest = nlohmann::json::parse(read(output / "0001-two/manifest.json"));
  std::vector<nlohmann::json> ids;
  for (const auto& source : manifest["sources"])
    ids.push_back(source["columns"][0]["variables"]);
  EXPECT_EQ(ids,
            (std::vector<nlohmann::json>{{"lost", "circle"}, {"mean of mean", "mean", "base"}}))
      << "what has no source is the first one's";
}

TEST_F(FolderSink, writes_each_cell_as_it_went_in) {
  const double infinity = std::numeric_limits<double>::infinity();
  VarDataProcessor columns;
  VarDataProcessor::_varinfo mixed;
  columns.AddDataSource("only", 0);
  columns.AddVariable("only", "A,\"B\"", mixed);
  std::size_t row = 0;
  for (const double value :
       {2.0, -0.0, 1e300, 5e-324, -1.7976931348623155e308, std::numeric_limits<double>::quiet_NaN(),
        infinity, -infinity, host::systemMissing})
    columns.SetVariableValue(mixed, row++, value);
  for (const char* value : {"", " 2 ", "a\rb", "NA"})
    columns.SetStringVariableValue(mixed, row++, value);
  columns.SetStringVariableValue(mixed, row++, std::string_view("a\0b", 3));
  columns.SetVariableValue(mixed, row + 1, 7);
  data = &columns;
  send("");
  EXPECT_EQ(read(output / "0001-chart/only.csv"),
            "\"A,\"\"B\"\"\"\n2\n-0\n1e+300\n5e-324\n-1.7976931348623155e+308\nNaN\nINF\n-INF\n"
            "\"\"\n\"\"\n 2 \n\"a\rb\"\nNA\n\"a\xEF\xBF\xBD"
            "b\"\n\"\"\n7\n");
}

TEST_F(FolderSink, makes_folder_names_that_every_file_system_takes) {
  const std::string longName(59, 'X');
  const std::pair<std::string, std::string> cases[] = {
      {"ANOVA 2/../..\\x:y", "0001-anova-2-x-y"},
      {"..", "0002-chart"},
      {"散布図", "0003-chart"},
      {longName + "-yz", "0004-" + std::string(59, 'x')},
  };
  for (const auto& [name, folder] : cases) {
    send(name);
    EXPECT_TRUE(exists(output / folder / "manifest.json")) << folder << " for " << name;
  }
  EXPECT_EQ(names(output).size(), 5U);
}

TEST_F(FolderSink, numbers_on_after_the_highest_chart_there) {
  for (const char* taken : {"0007-gap", "0012-file", "20-short", "9999999999999999-much", "x-31"})
    std::filesystem::create_directories(output / taken);
  send("next");
  EXPECT_TRUE(exists(output / "0021-next"));
}

TEST_F(FolderSink, lets_the_pages_be_written_before_and_after_the_chart_appears) {
  Names seen;
  host::PageWriter pages;
  pages.writeChart = [&](const std::filesystem::path& folder) {
    if (seen.empty()) {
      seen.emplace_back("chart");
      send("inner"); // finds the outer chart unfinished, and leaves it alone
    }
    EXPECT_EQ(names(folder), (Names{"chart.xml", "manifest.json"}));
    std::ofstream(folder / "chart.html") << "page";
    return Findings();
  };
  pages.writeGallery = [&](const std::filesystem::path& folder) {
    std::ranges::copy(names(folder), std::back_inserter(seen));
  };
  send("outer", pages);
  EXPECT_EQ(seen, (Names{"chart", ".lock", "0001-inner", "0002-outer"}));
  EXPECT_EQ(read(output / "0002-outer/chart.html"), "page");
}

TEST_F(FolderSink, delivers_a_chart_whose_pages_fail_and_says_so) {
  host::PageWriter pages;
  pages.writeChart = [](const std::filesystem::path& folder) -> Findings {
    throw std::runtime_error((folder / "chart.xml").native() + ":1:1: not drawn");
  };
  pages.writeGallery = [](const std::filesystem::path&) {
    throw ChartException("no gallery", "", 0);
  };
  send("bare", pages);
  EXPECT_EQ(names(output / "0001-bare"), (Names{"chart.xml", "manifest.json"}));
  EXPECT_THAT(read(output / "0001-bare/manifest.json"),
              testing::HasSubstr("\"errors\": [\n    \"chart.xml:1:1: not drawn\"\n  ],\n"));
  EXPECT_EQ(reports, (Names{"the page of " + (output / "0001-bare").native() +
                                " was not written: chart.xml:1:1: not drawn",
                            "the gallery of " + output.native() + " was not written: no gallery"}));
}

TEST_F(FolderSink, tells_in_log_and_manifest_what_was_found_while_a_chart_was_drawn) {
  host::PageWriter pages;
  pages.writeChart = [](const std::filesystem::path&) {
    return Findings{{.check = "c", .node = "n", .text = "n: nothing in it"},
                    {.check = "c", .node = "m", .text = "m: nothing either"}};
  };
  send("empty", pages);
  const std::string place = (output / "0001-empty").native();
  EXPECT_EQ(reports, (Names{place + ": n: nothing in it", place + ": m: nothing either"}));
  EXPECT_THAT(read(output / "0001-empty/manifest.json"),
              testing::HasSubstr(R"("text": "m: nothing either")"));
}

TEST_F(FolderSink, removes_what_a_process_left_that_died_while_writing) {
  std::filesystem::create_directories(output / ".tmp-1-1/deep");
  std::ofstream(output / ".tmp-1-1/chart.xml") << "<gra";
  send("next");
  EXPECT_EQ(names(output), (Names{".lock", "0001-next"}));
}

TEST_F(FolderSink, keeps_the_error_list_and_renews_the_gallery) {
  int galleries = 0;
  host::FolderSink sink({{}, [&](const std::filesystem::path&) { ++galleries; }});
  sink.noteError("first \"quoted\"");
  sink.noteError("second");
  EXPECT_EQ(names(output), (Names{".lock", "errors.json"}));
  EXPECT_EQ(read(output / "errors.json"), "[\n  \"first \\\"quoted\\\"\",\n  \"second\"\n]\n");
  EXPECT_EQ(galleries, 2);
}

} // namespace
