#include "../support/BuilderTest.h"

#include <stdexcept>

#include <fmt/format.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Describes its columns, but fails to count them as it is told.
struct Uncountable : Dictionary {
  using Dictionary::Dictionary;
  int ColumnCount() const override {
    fail();
    return Dictionary::ColumnCount();
  }
  std::function<void()> fail;
};

} // namespace

/// A data source that fails to answer does not stop a chart.
class FailingData : public BuilderTest {
protected:
  Uncountable data{{Column("a", "A", 0, {5, 8, 0}), Column("b", "B", 8, {20, 11, 0})}};
  int handle = registry().CreateChart();
  Chart& c = chart(handle);
  int source = c.AddSource();

  FailingData() { c.SetDataSource(&data); }
};

TEST_F(FailingData, TakesEveryColumnOfASourceThatFailsToCountThem) {
  const std::function<void()> failures[] = {[] { throw std::runtime_error("lost"); },
                                            [] { throw 7; },
                                            [] { throw ChartException("lost", "", 0); }};
  for (const auto& failure : failures) {
    data.fail = failure;
    EXPECT_TRUE(c.validVariable(0));
    EXPECT_TRUE(c.validVariable(99));
    EXPECT_FALSE(c.validVariable(-1)) << "which need not be asked for";
    EXPECT_THAT(takeReports(), ElementsAre("invalid variable index -1"));
    EXPECT_THAT(fragment(handle, c.AddVariable(source, 0, true)),
                testing::HasSubstr(R"(label="A" shortLabel="a" source="source0")"));
    EXPECT_EQ(c.GetVariableFormat(1), 20 << 16 | 11 << 8);
    EXPECT_THAT(takeReports(), IsEmpty());
  }
  data.fail = [] { throw KorvaGoToCaller(); };
  EXPECT_THROW(c.validVariable(0), KorvaGoToCaller);
  EXPECT_THROW(c.AddVariable(source, 0, true), KorvaGoToCaller);
  EXPECT_EQ(registry().EndChart(handle), 0);
  EXPECT_EQ(sent.size(), 1U);
}

// Texts where numbers are declared, and the reverse, come out as they went in.
TEST_F(FailingData, KeepsValuesThatTheirColumnDoesNotDeclare) {
  data.fail = [] {};
  const int number = c.AddVariable(source, 0, false);
  const int text = c.AddVariable(source, 1, false);
  for (const char* value : {"abc", "", "1"}) {
    c.AddRow(source);
    c.AddDataValue(source, number, BuilderTest::text(value));
    c.AddDoubleDataValue(source, text, 0.5);
  }
  c.AddDataValue(source, text, 99999);
  std::vector<std::string> cells;
  whenSent = [&](const host::SentChart& sentChart) {
    for (const auto& variable : sentChart.data->sources()[0].variables) {
      for (std::size_t row = 0; row < 3; ++row) {
        const auto& column = *variable.column;
        cells.push_back(column.kind(row) == host::ValueColumn::Kind::text
                            ? fmt::format("'{}'", column.text(row))
                            : ChartBase::asString(column.number(row)));
      }
    }
  };
  EXPECT_EQ(registry().EndChart(handle), 0);
  EXPECT_THAT(cells, ElementsAre("'abc'", "''", "1", "0.5", "0.5", "''"));
  EXPECT_THAT(takeReports(), ElementsAre("String not found for handle 99999"));
}
