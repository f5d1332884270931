#include "compute/Sample.h"

#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using render::Box;
using render::BoxPart;
using render::Sample;

Sample sampleOf(const std::vector<double>& values, const std::vector<double>& weights = {}) {
  std::vector<Sample::Value> all;
  all.reserve(values.size());
  for (std::size_t i = 0; i < values.size(); ++i)
    all.push_back({.value = values[i], .weight = weights.empty() ? 1 : weights[i], .row = i});
  return Sample(all);
}

TEST(SampleTest, ABoxEndsAtTheHingesAndItsWhiskersAtTheFarthestValuesNearIt) {
  const struct {
    const char* what;
    Sample sample;
    double lowerFence, lowerHinge, median, upperHinge, upperFence;
  } cases[] = {
      {"one value", sampleOf({4}), 4, 4, 4, 4, 4},
      {"odd, the median in both halves", sampleOf({9, 8, 7, 6, 5, 4, 3, 2, 1}), 1, 3, 5, 7, 9},
      {"even", sampleOf({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), 1, 3, 5.5, 8, 10},
      {"hinges between values", sampleOf({1, 2, 3, 4, 5, 6, 7}), 1, 2.5, 4, 5.5, 7},
      {"values beyond", sampleOf({-30, 1, 2, 3, 4, 5, 6, 7, 8, 9, 15.1}), 1, 2.5, 5, 7.5, 9},
      {"as often as they weigh", sampleOf({1, 2, 3}, {1, 4, 1}), 2, 2, 2, 2, 2},
  };
  for (const auto& [what, sample, lowerFence, lowerHinge, median, upperHinge, upperFence] : cases) {
    const Box box = Box::of(sample);
    EXPECT_THAT(
        (std::vector{box.lowerFence, box.lowerHinge, box.median, box.upperHinge, box.upperFence}),
        testing::ElementsAre(lowerFence, lowerHinge, median, upperHinge, upperFence))
        << what;
  }
}

TEST(SampleTest, ValuesBeyondOneAndAHalfHeightsAreOutliersBeyondThreeExtremes) {
  // The box goes from 3 to 8: fences at -4.5 and 15.5, extremes beyond -12 and 23.
  const Box box = Box::of(sampleOf({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
  const std::pair<double, BoxPart> cases[] = {{-12.1, BoxPart::extreme}, {-12, BoxPart::outlier},
                                              {1, BoxPart::none},        {10, BoxPart::none},
                                              {23, BoxPart::outlier},    {23.1, BoxPart::extreme}};
  for (const auto& [value, part] : cases)
    EXPECT_EQ(box.partOf(value), part) << value;
}

TEST(SampleTest, SummariesCountEachValueAsOftenAsItWeighs) {
  const Sample sample = sampleOf({2, 4, 9}, {2, 1, 1});
  const std::pair<const char*, double> cases[] = {{"count", 4},  {"sum", 17}, {"mean", 4.25},
                                                  {"median", 3}, {"min", 2},  {"max", 9}};
  for (const auto& [name, value] : cases)
    EXPECT_DOUBLE_EQ(render::findSummary(name)->spans(sample).front().high, value) << name;
  EXPECT_NEAR(sample.standardDeviation(), 3.304038, 1e-6);
  EXPECT_EQ(render::findSummary("mode"), nullptr);
}

} // namespace
