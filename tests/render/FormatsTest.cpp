// Numbers and dates read the same wherever they stand: the renderer's texts, computed by
// Vega from the chart document, against those of the formatter.

#include <algorithm>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chartxml/ChartXml.h>
#include <fmt/format.h>
#include <host/ChartSink.h>
#include <host/Formatter.h>
#include <host/Settings.h>
#include <host/StringTables.h>
#include <nlohmann/json.hpp>

#include "render/support/ChartFolder.h"
#include "render/support/Node.h"

namespace {

struct Column {
  int type, width, decimals;
  std::vector<double> values;

  long packed() const { return KORVA_Format(type, width, decimals); }
};

const std::vector<double> numbers{
    0,      5,     -5,    0.5,    1.5,     2.5,       0.125,         0.375,   -8.125, -0.75,
    -0.001, 1.005, 2.675, 1234.5, -1234.5, 1234567.8, -1234567891.2, 99.9999, 0.0625};
/// Around the ends of seconds, days, years and centuries, and before the calendar began.
const std::vector<double> dates{
    0,
    -0.25,
    -86400.5,
    13166064000,
    13166064000 - 0.001,
    13166064000 + 45930.25,
    13166064000 + 45930.123,
    13197600000 - 1, // 31 December 2000, the 366th day
    13166064000 + 58.0 * 86400 + 86399.999,
    13166064000 - 2000.0 * 365.2425 * 86400,
    13166064000 - 2005.0 * 365.2425 * 86400,
    13166064000 + 10000.0 * 365.2425 * 86400,
};
const std::vector<double> durations{0,      0.4,       -0.4,   59.9996, 45930.25, -45930.25,
                                    178200, -178200.5, 359999, 1e10,    86399.999};

/// Wide enough for all values: the chart knows no width.
constexpr int wide = 40;

std::vector<Column> columns() {
  std::vector<Column> columns;
  for (const int type : {3, 4, 5, 6, 8, 9, 11, 15, 16, 31, 32, 33, 34, 35, 36})
    for (const int decimals : {0, 2})
      columns.push_back({type, wide, decimals, numbers});
  columns.push_back({17, wide, 3, {1.234e5, -1.234e-5, 9.876e12, 1.001e100, -2.345}});
  columns.push_back({40, wide, 2, {12.25, -1234.75, 9999.25}});
  for (const int type : {20, 22, 23, 24, 26, 27, 28, 29, 30, 38, 39, 86})
    for (const int width : {3, 10, 18, 24})
      columns.push_back({type, width, 0, dates});
  for (const int width : {5, 8, 12})
    columns.push_back({21, width, 0, durations});
  columns.push_back({85, 8, 0, durations});
  return columns;
}

/// What the formatter makes of a value: grouped where the format says so.
std::string expected(const Column& column, double value) {
  const bool isGrouped =
      CmnSys::shared().digitGrouping() && (column.type == 5 || column.type == 31);
  return formatter::formattedValue(OBS{.number = value}, column.type, column.width, column.decimals,
                                   isGrouped ? CmnLoc::shared()->groupingSeparator : "");
}

/// A chart with a variable for each column.
void send(const std::vector<Column>& columns) {
  ChartXml& registry = *ChartXml::GetInstance();
  const int chart = registry.CreateChart();
  const int source = registry.AddSource(chart);
  std::vector<int> variables;
  std::size_t rows = 0;
  for (const Column& column : columns) {
    variables.push_back(registry.AddAggregate(chart, source, -1, false, -1, -1, -1));
    EXPECT_NE(registry.SetVariableFormat(chart, variables.back(), column.packed()), -1)
        << column.type;
    rows = std::max(rows, column.values.size());
  }
  for (std::size_t row = 0; row < rows; ++row) {
    registry.AddRow(chart, source);
    for (std::size_t i = 0; i < columns.size(); ++i)
      if (row < columns[i].values.size())
        registry.AddDoubleDataValue(chart, source, variables[i], columns[i].values[row]);
  }
  EXPECT_NE(registry.EndChart(chart), -1);
}

class FormatsTest : public testing::TestWithParam<const char*> {
protected:
  FormatsTest() {
    host::setOutputLanguage(GetParam());
    host::setOutputFolder(output.path());
    currencyFormat::SetCCX(0, {"USD ", "", "-", ""});
    currencyFormat::SetCCX(1, {"", " EUR", "(", ")"});
    currencyFormat::SetCCX(2, {"$", "", "", ""});
    currencyFormat::SetCCX(3, {"100%", "$&", "", ""});
  }
  ~FormatsTest() override {
    ChartXml::Terminate();
    CmnSys::shared() = {};
    for (int number = 0; number < 4; ++number)
      currencyFormat::SetCCX(number, {});
    host::setOutputFolder({});
    host::setOutputLanguage("");
  }

  TestFolder output;
};

TEST_P(FormatsTest, ShowWhatTheFormatterShows) {
  for (const bool grouped : {false, true}) {
    CmnSys::shared().setDigitGrouping(grouped);
    CmnSys::shared().minimumIntegerDigits = grouped ? 5 : 0;
    send(columns());
    const auto folder = output.path() / (grouped ? "0002-chart" : "0001-chart");
    const nlohmann::json rows = scriptOutput("texts.mjs", {folder.native()});
    for (std::size_t i = 0; const Column& column : columns()) {
      for (std::size_t row = 0; row < column.values.size(); ++row)
        EXPECT_EQ(rows[row][i], expected(column, column.values[row]))
            << fmt::format("{} in format {}, width {}, decimals {}", column.values[row],
                           column.type, column.width, column.decimals);
      ++i;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, FormatsTest, testing::Values("en", "de", "fr", "ja"),
                         [](const auto& test) { return test.param; });

/// Formats that no display format asks for, against texts written by hand.
TEST(Formats, CountDigitsWithoutTheSign) {
  const struct {
    std::string_view format;
    std::vector<std::string> texts; ///< of -5, -0.3, 1234567.25 and -1e-7
  } cases[] = {
      {"", {"-5", "-0.3", "1234567", "-1E-07"}},
      {R"(scientific="auto")", {"-5", "-0.3", "1234567", "-1E-07"}},
      {R"(scientific="always")", {"-5E+00", "-3E-01", "1.234567E+06", "-1E-07"}},
      {R"(minimumIntegerDigits="3")", {"-005", "-000.3", "1234567.25", "000"}},
      {R"(minimumIntegerDigits="5" useGrouping="true" minimumFractionDigits="1"
          maximumFractionDigits="1" negativesInParentheses="true")",
       {"(00,005.0)", "(00,000.3)", "1,234,567.2", "00,000.0"}},
  };
  for (const auto& [format, texts] : cases) {
    const TestFolder folder;
    const std::string number = fmt::format("<numberFormat {}/>", format);
    folder
        .write("chart.xml",
               document(R"(<element type="point" id="e"><x variable="v4"/><y variable="v4"/>
                 </element>)",
                        fmt::format(R"(<variable id="v4" sourceName="A" source="source0">{}
                          </variable>)",
                                    format.empty() ? "" : "<meta>" + number + "</meta>")))
        .write("source0.csv", "A,B,Group\n-5,,a\n-0.3,,a\n1234567.25,,a\n-1e-7,,a\n");
    (void)folder.spec();
    std::vector<std::string> shown;
    for (const nlohmann::json& row : scriptOutput("texts.mjs", {folder.path().native()}))
      shown.push_back(row[0]);
    EXPECT_EQ(shown, texts) << format;
  }
}

} // namespace
