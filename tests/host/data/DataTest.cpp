#include <gtest/gtest.h>

#include <host/Data.h>

namespace {

TEST(KORVA_Format, PacksTypeWidthAndDecimalsAndReadsThemBack) {
  const long packed = KORVA_Format(5, 8, 2);
  EXPECT_EQ(packed, 5L << 16 | 8L << 8 | 2);
  const KORVA_Format format(packed);
  EXPECT_EQ(format.TypeEx(), 5);
  EXPECT_EQ(format.Width(), 8);
  EXPECT_EQ(format.Decimals(), 2);
  EXPECT_EQ(KORVA_Format(1, 300, -1), KORVA_Format(1, 255, 0));
}

TEST(KORVA_ValueLabelMap, FindsTheLabelOfANumber) {
  KORVA_ValueLabelMap labels;
  EXPECT_TRUE(labels.add(0, "none"));
  EXPECT_TRUE(labels.add(2.5, "some"));
  EXPECT_FALSE(labels.add(2.5, "another"));
  EXPECT_STREQ(labels.GetLabel({.number = 2.5}), "some");
  EXPECT_STREQ(labels.GetLabel({.number = -0.0}), "none");
  EXPECT_EQ(labels.GetLabel({.number = 1}), nullptr);
}

TEST(KORVA_ValueLabelMap, ComparesTextsOverTheWidthWithoutTrailingBlanks) {
  KORVA_ValueLabelMap labels(10);
  labels.add("Gentoo", "G");
  labels.add("Adelie 1.2", "A");
  OBS value[2];
  host::writeText("Gentoo", 10, value);
  EXPECT_STREQ(labels.GetLabel(value[0]), "G");
  host::writeText("Adelie 1.2xyz", 16, value); // bytes past the width do not count
  EXPECT_STREQ(labels.GetLabel(value[0]), "A");
  host::writeText("Gent", 10, value);
  EXPECT_EQ(labels.GetLabel(value[0]), nullptr);
}

TEST(KORVA_ValueLabelMap, WalksItsPairsInTheOrderAdded) {
  KORVA_ValueLabelMap labels(9);
  labels.add("b", "second letter");
  labels.add("a", "first letter");
  std::string seen;
  int position = 0;
  const OBS* value = nullptr;
  const char* label = nullptr;
  while (labels.GetNextPair(position, value, label))
    seen += std::string(value->bytes, 16) + '=' + label + '\n';
  EXPECT_EQ(seen, "b               =second letter\na               =first letter\n");
}

} // namespace
