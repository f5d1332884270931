#include <gtest/gtest.h>

#include <host/Text.h>

namespace {

struct Pair {
  std::string utf8;
  std::u16string utf16;
};

TEST(Text, ConvertsWellFormedTextBothWays) {
  const Pair pairs[] = {
      {"", u""},
      {"seven..", u"seven.."},
      {"eight...nine", u"eight...nine"},
      {"1234567é90123456789", u"1234567é90123456789"},
      {"日本語 €", u"日本語 €"},
      {"a\U0001F600b\U0010FFFF", u"a\U0001F600b\U0010FFFF"},
      {std::string("a\0b", 3), std::u16string(u"a\0b", 3)},
  };
  for (const auto& [bytes, units] : pairs) {
    std::u16string before = u"é=";
    host::appendUtf16(before, bytes);
    EXPECT_EQ(before, u"é=" + units) << bytes;
    EXPECT_EQ(host::utf8(units), bytes) << bytes;
  }
}

TEST(Text, TurnsEachInvalidSequenceIntoOneReplacementCharacter) {
  const Pair pairs[] = {
      {"a\xFFz", u"a\uFFFDz"},
      {"\xC3", u"\uFFFD"},
      {"\xE6\x97 x", u"\uFFFD x"},                       // cut off: one sequence
      {"\xC0\xAF", u"\uFFFD\uFFFD"},                     // overlong
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},           // a surrogate
      {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // beyond U+10FFFF
      {"12345678\x80", u"12345678\uFFFD"},
  };
  for (const auto& [bytes, units] : pairs)
    EXPECT_EQ(host::utf16(bytes), units);
}

TEST(Text, TurnsLoneSurrogatesIntoReplacementCharacters) {
  EXPECT_EQ(host::utf8(std::u16string{u'a', 0xD800, u'b'}), "a\uFFFDb");
  EXPECT_EQ(host::utf8(std::u16string{0xDC00, 0xD83D}), "\uFFFD\uFFFD");
}

} // namespace
