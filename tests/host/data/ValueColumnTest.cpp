#include <host/ValueColumn.h>

#include <bit>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <fmt/format.h>

namespace {

using host::ValueColumn;
using Kind = ValueColumn::Kind;

TEST(ValueColumn, TellsUnsetCellsFromEveryNumber) {
  ValueColumn column;
  const double values[] = {0.0, -0.0, std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::lowest()};
  for (std::size_t row = 0; const double value : values)
    EXPECT_TRUE(column.setNumber(2 * row++, value));
  for (std::size_t row = 0; const double value : values) {
    EXPECT_EQ(column.kind(2 * row), Kind::number);
    EXPECT_EQ(column.kind(2 * row + 1), Kind::empty);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(column.number(2 * row++)),
              std::bit_cast<std::uint64_t>(value));
  }
  EXPECT_EQ(column.rowCount(), 7U);
}

TEST(ValueColumn, TakesAnyNanAsANumberEvenTheOneOfAnUnsetCell) {
  ValueColumn column;
  column.setNumber(1, 5);
  column.setNumber(0, column.number(7));
  EXPECT_EQ(column.kind(0), Kind::number);
  EXPECT_TRUE(std::isnan(column.number(0)));
}

TEST(ValueColumn, KeepsTheLatestOfNumbersAndTextsInACell) {
  ValueColumn column;
  column.setNumber(0, 1);
  EXPECT_FALSE(column.hasTexts());
  column.setText(0, "one");
  EXPECT_EQ(column.kind(0), Kind::text);
  EXPECT_EQ(column.text(0), "one");
  EXPECT_TRUE(std::isnan(column.number(0)));
  column.setNumber(0, 2);
  EXPECT_EQ(column.kind(0), Kind::number);
  EXPECT_EQ(column.number(0), 2);
  EXPECT_EQ(column.text(0), "");
  EXPECT_TRUE(column.hasTexts());
}

TEST(ValueColumn, TellsAnEmptyTextFromAnUnsetCell) {
  ValueColumn column;
  column.setText(1, "");
  EXPECT_EQ(column.kind(0), Kind::empty);
  EXPECT_EQ(column.kind(1), Kind::text);
}

TEST(ValueColumn, LosesNothingWhileItGrows) {
  constexpr std::size_t rows = 100'000;
  ValueColumn column;
  for (std::size_t row = 0; row < rows; ++row) {
    if (row % 3 == 0)
      column.setText(row, fmt::format("t{}", row % 100));
    else
      column.setNumber(row, static_cast<double>(row));
  }
  EXPECT_EQ(column.rowCount(), rows);
  for (std::size_t row = 0; row < rows; ++row) {
    if (row % 3 == 0)
      ASSERT_EQ(column.text(row), fmt::format("t{}", row % 100));
    else
      ASSERT_EQ(column.number(row), static_cast<double>(row));
  }
}

TEST(ValueColumn, RefusesRowsPastItsLimitAndTheOneBeforeTheFirst) {
  ValueColumn column;
  for (const std::size_t row :
       {std::size_t{0} - 1, std::size_t{1'000'000'000'000}, ValueColumn::maxRows}) {
    EXPECT_FALSE(column.setNumber(row, 1)) << row;
    EXPECT_FALSE(column.setText(row, "x")) << row;
  }
  EXPECT_EQ(column.rowCount(), 0U);
  EXPECT_FALSE(column.hasTexts());
  EXPECT_TRUE(column.setNumber(ValueColumn::maxRows - 1, 1));
  EXPECT_EQ(column.number(ValueColumn::maxRows - 1), 1);
  EXPECT_EQ(column.kind(ValueColumn::maxRows - 2), Kind::empty);
}

TEST(ValueColumn, KeepsItsTextsWhenItIsMoved) {
  ValueColumn column;
  column.setText(0, "short");
  ValueColumn moved = std::move(column);
  moved.setText(1, "short");
  EXPECT_EQ(moved.text(0).data(), moved.text(1).data());
}

} // namespace
