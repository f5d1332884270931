#include <algorithm>

#include <gtest/gtest.h>

#include <chartxml/FormatSpec.h>

TEST(FormatSpec, KnowsThePrintedNumbers) {
  constexpr int printed[] = {3, 4, 5, 6, 7, 15, 16, 17, 31, 32, 33, 34, 35, 36, 37};
  for (int type = -1; type < 300; ++type) {
    EXPECT_EQ(formatSpec::is_print_numeric(type),
              std::ranges::find(printed, type) != std::end(printed))
        << type;
  }
}

TEST(FormatSpec, WidensFormatsForMeansAndDeviations) {
  constexpr auto packed = [](long type, long width, long decimals) {
    return type << 16 | width << 8 | decimals;
  };
  struct Case {
    long format, mean, deviation;
  };
  const Case cases[] = {
      {packed(5, 8, 2), packed(5, 8, 4), packed(5, 40, 5)},
      {packed(16, 8, 14), packed(5, 8, 16), packed(5, 40, 16)},
      {packed(7, 8, 13), packed(7, 8, 15), packed(7, 40, 16)},
      {packed(37, 0, 200), packed(37, 0, 16), packed(37, 40, 16)},
      {packed(8, 8, 2), packed(8, 8, 2), packed(8, 8, 2)},
      {packed(40, 8, 2), packed(40, 8, 2), packed(40, 8, 2)},
      {-1, -1, -1},
  };
  for (const auto& [format, mean, deviation] : cases) {
    EXPECT_EQ(formatSpec::Mean(format), mean) << format;
    EXPECT_EQ(formatSpec::StdDev(format), deviation) << format;
  }
}
