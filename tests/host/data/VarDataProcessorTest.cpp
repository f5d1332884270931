#include <gtest/gtest.h>

#include <host/VarDataProcessor.h>

namespace {

TEST(VarDataProcessor, CountsTheRowsOfTheLongestColumnOfEachSource) {
  VarDataProcessor data;
  VarDataProcessor::_varinfo x;
  VarDataProcessor::_varinfo y;
  VarDataProcessor::_varinfo other;
  data.AddDataSource("source0", 250000);
  data.AddDataSource("source1", 250000);
  EXPECT_TRUE(data.AddVariable("source0", "V1", x));
  EXPECT_TRUE(data.AddVariable("source0", "V2", y));
  EXPECT_TRUE(data.AddVariable("source1", "V3", other));
  EXPECT_TRUE(data.SetVariableValue(x, 1, 1.5));
  EXPECT_TRUE(data.SetStringVariableValue(y, 4, "five"));
  EXPECT_TRUE(data.SetVariableValue(other, 0, 0));
  EXPECT_EQ(data.GetRowCount("source0"), 5U);
  EXPECT_EQ(data.GetRowCount("source1"), 1U);
  EXPECT_EQ(data.GetRowCount("source2"), 0U);
}

TEST(VarDataProcessor, SharesAColumnByNameAndGivesAnUnknownSourceTheFirst) {
  VarDataProcessor data;
  VarDataProcessor::_varinfo first;
  VarDataProcessor::_varinfo again;
  VarDataProcessor::_varinfo strayed;
  data.AddDataSource("source0", 0);
  data.AddVariable("source0", "V1", first);
  data.AddDataSource("source0", 0);
  data.AddVariable("source0", "V1", again);
  EXPECT_TRUE(data.AddVariable("nowhere", "V2", strayed));
  EXPECT_EQ(first.column, again.column);
  ASSERT_EQ(data.sources().size(), 1U);
  ASSERT_EQ(data.sources().front().variables.size(), 2U);
  EXPECT_EQ(data.sources().front().variables[1].name, "V2");
  EXPECT_EQ(data.sources().front().variables[1].column.get(), strayed.column);
}

TEST(VarDataProcessor, DropsValuesWithoutASourceAndRefusesTheRowBeforeTheFirst) {
  VarDataProcessor data;
  VarDataProcessor::_varinfo info;
  EXPECT_FALSE(data.AddVariable("source0", "V1", info));
  EXPECT_TRUE(data.SetVariableValue(info, 0, 1));
  data.AddDataSource("source0", 0);
  data.AddVariable("source0", "V1", info);
  EXPECT_FALSE(data.SetVariableValue(info, std::size_t{0} - 1, 1));
  EXPECT_EQ(data.GetRowCount("source0"), 0U);
}

} // namespace
