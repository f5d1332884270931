#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <host/DataSet.h>

#include <fmt/format.h>
#include <host/CodePages.h>
#include <host/Missing.h>

#include "ScratchFolder.h"

namespace {

using host::DataSet;

/// A column as one line: name, label, width, format, value labels.
std::string described(const KORVA_Variable& variable) {
  int type = 0;
  int width = 0;
  int decimals = 0;
  variable.GetFormatEx(type, width, decimals);
  std::string line = fmt::format("{}|{}|{}|{}:{}.{}|", variable.GetName(), variable.GetLabel(),
                                 variable.GetType(), type, width, decimals);
  const OBS* value = nullptr;
  const char* label = nullptr;
  for (int position = 0; variable.GetValueLabels().GetNextPair(position, value, label);)
    line += variable.GetType() == 0
                ? fmt::format("{}={};", value->number, label)
                : fmt::format("{}={};", std::string_view(value->bytes, 8), label);
  return line;
}

std::vector<std::string> columnsOf(const DataSet& data) {
  std::vector<std::string> columns;
  columns.reserve(static_cast<std::size_t>(data.ColumnCount()));
  for (int index = 0; index < data.ColumnCount(); ++index)
    columns.push_back(described(data.GetVariable(index)));
  return columns;
}

/// A row as text: numbers, "." for missing ones, the bytes of texts in brackets.
std::string rowOf(const DataSet& data, std::size_t row) {
  std::vector<OBS> cells(data.cellsPerRow());
  data.readRow(row, cells);
  std::string text;
  const OBS* cell = cells.data();
  for (int v = 1; v <= data.VariableCount(); ++v) {
    const int width = data.GetVariable(data.GetIndex(v)).GetType();
    const auto count = static_cast<std::size_t>(host::cellsOfWidth(width));
    if (width > 0)
      text += fmt::format("[{}]", std::string_view(cell->bytes, 8 * count));
    else
      text += cell->number == host::systemMissing ? "." : fmt::format("({})", cell->number);
    cell += count;
  }
  return text;
}

TEST(DataSet, ReadsAPackageAsItDescribesItself) {
  ScratchFolder folder;
  folder.write("t.csv", "n,i,b,s,d\n\"1,5\"\"\", NA ,TRUE,NA,x\n");
  folder.write("datapackage.json",
               R"({"resources": [{"path": "t.csv", "dialect": {"delimiter": ","},
    "schema": {"missingValues": ["", "NA"], "fields": [
      {"name": "n", "title": "A text"},
      {"name": "i", "type": "integer", "format": "COMMA9.0",
       "categories": [2, {"value": 1, "label": "one"}]},
      {"name": "b", "type": "boolean", "categories": [{"value": true, "label": "yes"}]},
      {"name": "s", "type": "string", "format": "email", "chartxml:format": "a12"},
      {"name": "d", "format": "default", "missingValues": ["x"], "categories": ["ten bytes."]}]}}]})");
  const auto data = DataSet::open(folder.path());
  EXPECT_THAT(columnsOf(*data), testing::ElementsAre("n|A text|4|1:4.0|", "i||0|3:9.0|2=2;1=one;",
                                                     "b||0|5:8.0|1=yes;", "s||12|1:12.0|",
                                                     "d||10|1:10.0|ten byte=ten bytes.;"));
  EXPECT_EQ(data->rowCount(), 1U);
  EXPECT_EQ(rowOf(*data, 0), "[1,5\"    ].(1)[                ][                ]");
}

TEST(DataSet, KnowsTheDisplayFormatsByName) {
  ScratchFolder folder;
  std::string fields;
  std::string header;
  for (const char* format :
       {"F8.2",         "COMMA9.1",      "DOLLAR12.2", "PCT5.0",        "E12.3",        "f3",
        "DATE11",       "TIME8",         "DATETIME20", "NumericDate10", "YEARDAY8",     "DAYTIME13",
        "WEEKDAY9",     "MONTH9",        "MONTHYEAR8", "QUARTERYEAR8",  "WEEKYEAR10",   "MINUTE9",
        "DATEMINUTE20", "CURRENCYA12.2", "CURRENCYE9", "FORMAT38.10",   "format40.12.3"}) {
    fields += fmt::format("{}{{\"name\": \"{}\", \"type\": \"number\", \"format\": \"{}\"}}",
                          fields.empty() ? "" : ",", format, format);
    header += fmt::format("{}{}", header.empty() ? "" : ",", format);
  }
  folder.write("t.csv", header);
  const auto data = DataSet::open(folder.write(
      "p.json", R"({"resources": [{"path": "t.csv", "schema": {"fields": [)" + fields + "]}}]}"));
  EXPECT_THAT(columnsOf(*data),
              testing::ElementsAre(
                  "F8.2||0|5:8.2|", "COMMA9.1||0|3:9.1|", "DOLLAR12.2||0|4:12.2|",
                  "PCT5.0||0|31:5.0|", "E12.3||0|17:12.3|", "f3||0|5:3.0|", "DATE11||0|20:11.0|",
                  "TIME8||0|21:8.0|", "DATETIME20||0|22:20.0|", "NumericDate10||0|23:10.0|",
                  "YEARDAY8||0|24:8.0|", "DAYTIME13||0|25:13.0|", "WEEKDAY9||0|26:9.0|",
                  "MONTH9||0|27:9.0|", "MONTHYEAR8||0|28:8.0|", "QUARTERYEAR8||0|29:8.0|",
                  "WEEKYEAR10||0|30:10.0|", "MINUTE9||0|85:9.0|", "DATEMINUTE20||0|86:20.0|",
                  "CURRENCYA12.2||0|33:12.2|", "CURRENCYE9||0|37:9.0|", "FORMAT38.10||0|38:10.0|",
                  "format40.12.3||0|40:12.3|"));
}

TEST(DataSet, ReadsDatesAndTimesAsSecondsOfTheCalendar) {
  ScratchFolder folder;
  folder.write("t.csv", "d,dt,t,y,ym\n"
                        "1582-10-15, 1582-10-14T01:02:03.25Z ,23:59:59,2000,1582-11\n"
                        "2000-02-29,1582-10-14T01:00:00+02:30,00:00:00.5,-0044,2000-01\n"
                        ",1582-10-14T22:00:00-02:00,NA,,\n"
                        ",1582-10-15T00:00:00,NA,,\n");
  folder.write("datapackage.json",
               R"({"resources": [{"path": "t.csv", "schema": {"fields": [
      {"name": "d", "type": "date", "format": "default",
       "categories": [{"value": "1582-10-15", "label": "first"}]},
      {"name": "dt", "type": "datetime", "format": "DATETIME23"},
      {"name": "t", "type": "time", "missingValues": ["NA"]},
      {"name": "y", "type": "year", "categories": [2000]},
      {"name": "ym", "type": "yearmonth"}]}}]})");
  const auto data = DataSet::open(folder.path());
  EXPECT_THAT(columnsOf(*data),
              testing::ElementsAre("d||0|20:11.0|86400=first;", "dt||0|22:23.0|", "t||0|21:8.0|",
                                   "y||0|5:8.0|2000=2000;", "ym||0|28:8.0|"));
  EXPECT_EQ(rowOf(*data, 0), "(86400)(3723.25)(86399)(2000)(1555200)");
  EXPECT_EQ(rowOf(*data, 1), "(13171161600)(-5400)(0.5)(-44)(13166064000)");
  EXPECT_EQ(rowOf(*data, 2), ".(86400)...");
  EXPECT_EQ(rowOf(*data, 3), ".(86400)...");
}

TEST(DataSet, InfersTheColumnsOfABareCsv) {
  ScratchFolder folder;
  const auto data =
      DataSet::open(folder.write("t.csv", "\xEF\xBB\xBFwhole,part,text,code,day,month\r\n"
                                          "7, +2.50 ,Gr\xC3\xBC\xC3\x9F"
                                          "e,007,1582-10-14,1582-10\r\n"
                                          "NA,-1.125e3,,x,NA,NA\r\n"
                                          "\r\n"
                                          ",.50000000000000000000,\" a\nb\",NA, 1582-10-15 ,"));
  EXPECT_THAT(columnsOf(*data), testing::ElementsAre("whole|whole|0|5:8.0|", "part|part|0|5:21.16|",
                                                     "text|text|7|1:7.0|", "code|code|3|1:3.0|",
                                                     "day|day|0|20:11.0|", "month|month|7|1:7.0|"));
  ASSERT_EQ(data->rowCount(), 3U);
  EXPECT_EQ(rowOf(*data, 0), "(7)(2.5)[Gr\xC3\xBC\xC3\x9F"
                             "e ][007     ](0)[1582-10 ]");
  EXPECT_EQ(rowOf(*data, 1), ".(-1125)[        ][x       ].[NA      ]");
  EXPECT_EQ(rowOf(*data, 2), ".(0.5)[ a\nb    ][NA      ](86400)[        ]");
}

TEST(DataSet, ReadsAFileOfManyPiecesWithQuotedLineEnds) {
  constexpr int rows = 40'000;
  std::string csv = "n,s\r\n";
  for (int row = 0; row < rows; ++row)
    csv += fmt::format("{},\"a\r\nb\"\r\n", row);
  ScratchFolder folder;
  const auto data = DataSet::open(folder.write("t.csv", csv));
  ASSERT_EQ(data->rowCount(), static_cast<std::size_t>(rows));
  for (int row = 0; row < rows; ++row)
    ASSERT_EQ(rowOf(*data, static_cast<std::size_t>(row)), fmt::format("({})[a\r\nb    ]", row));
  try {
    DataSet::open(folder.write("t.csv", csv + "1"));
    FAIL();
  } catch (const host::DataError& error) {
    EXPECT_THAT(error.what(), testing::HasSubstr("t.csv:80002:2: field \"s\""));
  }
}

TEST(DataSet, ReadsAHeaderWithoutRows) {
  ScratchFolder folder;
  const auto data = DataSet::open(folder.write("t.csv", "a,b"));
  EXPECT_EQ(data->rowCount(), 0U);
  EXPECT_EQ(data->ColumnCount(), 2);
}

TEST(DataSet, MapsTheVariablesOfTheRunToColumns) {
  ScratchFolder folder;
  const auto data = DataSet::open(folder.write("t.csv", "a,b,c\n1,2,x\n"));
  EXPECT_EQ(data->findColumn("c"), 2);
  EXPECT_EQ(data->findColumn("d"), -1);
  EXPECT_EQ(rowOf(*data, 0), "(1)(2)[x       ]");
  const int columns[] = {2, 0};
  data->useVariables(columns);
  data->splitBy(columns);
  EXPECT_EQ(data->VariableCount(), 2);
  EXPECT_EQ(rowOf(*data, 0), "[x       ](1)");
  EXPECT_EQ(data->GetIndex(1), 2);
  EXPECT_EQ(data->GetIndex(0), -1);
  EXPECT_EQ(data->GetIndex(3), -1);
  EXPECT_EQ(data->SplitVariableCount(), 2);
  EXPECT_EQ(data->SplitVariableIndex(0), 2);
  EXPECT_EQ(data->SplitVariableIndex(2), -1);
  const int outside[] = {0, 3};
  EXPECT_THROW(data->useVariables(outside), host::DataError);
  EXPECT_EQ(rowOf(*data, 0), "[x       ](1)");
  data->useVariables({});
  EXPECT_EQ(data->VariableCount(), 3);
}

TEST(DataSet, GivesItsTextsInTheProcessCodePage) {
  ScratchFolder folder;
  const auto path = folder.write("t.csv", "\xC3\xA9,s\n1,\xC3\xBC\n");
  ASSERT_TRUE(host::setProcessCodePage("ISO-8859-1"));
  const auto data = DataSet::open(path);
  host::setProcessCodePage("UTF-8");
  EXPECT_THAT(columnsOf(*data), testing::ElementsAre("\xE9|\xE9|0|5:8.0|", "s|s|2|1:2.0|"));
  EXPECT_EQ(rowOf(*data, 0), "(1)[\xFC       ]");
  EXPECT_EQ(data->findColumn("\xE9"), 0);
}

// ---- Life time -----------------------------------------------------------

TEST(DataSet, IsAliveUntilItIsClosedAndMayBeClosedAgain) {
  ScratchFolder folder;
  DataSet* data = DataSet::open(folder.write("t.csv", "a\n1\n")).release();
  EXPECT_TRUE(KORVA_FortranDictionary::isAlive(data));
  DataSet::close(data);
  EXPECT_FALSE(KORVA_FortranDictionary::isAlive(data));
  DataSet::close(data);
  DataSet::close(nullptr);
}

TEST(DataSet, KeepsItsColumnsButNotItsRowsWhenClosedWhileInUse) {
  ScratchFolder folder;
  DataSet* data = DataSet::open(folder.write("t.csv", "a\n1\n")).release();
  {
    const ProcedureDataSource source(nullptr, data);
    DataSet::close(data);
    DataSet::close(data);
    EXPECT_TRUE(data->isClosed());
    EXPECT_EQ(data->rowCount(), 0U);
    EXPECT_EQ(described(source.GetVariable(0)), "a|a|0|5:8.0|");
  }
  EXPECT_FALSE(KORVA_FortranDictionary::isAlive(data));
}

TEST(DataSet, IsLeftToItsNewOwnerWhenHandedOver) {
  ScratchFolder folder;
  DataSet* data = DataSet::open(folder.write("t.csv", "a\n1\n")).release();
  data->HandOver();
  {
    const ProcedureDataSource source(nullptr, data);
    DataSet::close(data);
  }
  DataSet::close(data);
  ASSERT_TRUE(KORVA_FortranDictionary::isAlive(data));
  delete data;
  EXPECT_FALSE(KORVA_FortranDictionary::isAlive(data));
}

TEST(DataSet, MayGoBeforeTheDataSourceThatUsesIt) {
  ScratchFolder folder;
  DataSet* data = DataSet::open(folder.write("t.csv", "a\n1\n")).release();
  const ProcedureDataSource source(nullptr, data);
  delete data;
}

} // namespace
