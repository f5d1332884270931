#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <host/ChartTranscoder.h>
#include <host/CodePages.h>

#include "host/text/ErrorCapture.h"

namespace {

struct PageText {
  const char* page;
  std::string bytes;
  std::u16string text;
};

TEST(ChartTranscoder, ConvertsBothWays) {
  const PageText cases[] = {
      {"UTF-8", "Größe 日本", u"Größe 日本"},
      {"CP1252", "Stra\xDF\x80", u"Straß€"},
      {"CP1250", "\xB3\xF3\x9F", u"łóź"},
      {"CP1251", "\xCF\xF0", u"Пр"},
      {"CP932", "X\x8E\xB2 \\n", u"X軸 \\n"},
      {"CP936", "\xD6\xD0\\", u"中\\"},
      {"CP949", "\xC7\xD1\\n", u"한\\n"},
      {"CP950", "\xA4\xA4\\", u"中\\"},
      {"ISO-2022-JP", "a\x1B$B<4\x1B(Bb", u"a軸b"},
      {"UTF-7", "a+AOk-b", u"aéb"},
      {"ibm-037", "\xC1\x82", u"Ab"},
      {"UTF-16LE", std::string("A\0\x08\x67", 4), u"A月"},
  };
  for (const auto& [page, bytes, text] : cases) {
    const ChartTranscoder transcoder(page);
    EXPECT_EQ(transcoder.transcode(bytes), text) << page;
    EXPECT_EQ(transcoder.transcodeTo(text), bytes) << page;
  }
}

TEST(ChartTranscoder, ReplacesWhatThePageDoesNotHoldAndStartsAfresh) {
  EXPECT_EQ(ChartTranscoder("CP1252").transcodeTo(u"a日é"), "a?\xE9");
  EXPECT_EQ(ChartTranscoder("CP932").transcode("\xFF-\x8E"), u"\uFFFD-\uFFFD");
  const ChartTranscoder shifting("ISO-2022-JP");
  EXPECT_EQ(shifting.transcode("\x1B$B<4"), u"軸");
  EXPECT_EQ(shifting.transcode("<4"), u"<4");
}

TEST(ChartTranscoder, ReportsAPageThatIsNotKnownAndTakesUtf8) {
  ErrorCapture errors;
  EXPECT_EQ(ChartTranscoder("CP99999").transcode("é"), u"é");
  EXPECT_EQ(ChartTranscoder("").transcode("é"), u"é");
  EXPECT_THAT(errors.messages(), testing::ElementsAre("no code page \"CP99999\": UTF-8 is used",
                                                      "no code page \"\": UTF-8 is used"));
}

class ProcessCodePage : public testing::Test {
protected:
  ~ProcessCodePage() override { host::setProcessCodePage("UTF-8"); }
};

TEST_F(ProcessCodePage, IsUtf8UntilAKnownPageIsSet) {
  EXPECT_STREQ(KORVAMBDefaultCodePage(), "UTF-8");
  EXPECT_FALSE(host::setProcessCodePage("no such page"));
  EXPECT_FALSE(host::setProcessCodePage(""));
  EXPECT_STREQ(KORVAMBDefaultCodePage(), "UTF-8");
  EXPECT_TRUE(host::setProcessCodePage("CP1252"));
  EXPECT_STREQ(KORVAMBDefaultCodePage(), "CP1252");
  EXPECT_EQ(KORVAMBTranscodeGeneric(u"né"), "n\xE9");
  EXPECT_TRUE(host::setProcessCodePage("utf8"));
  EXPECT_STREQ(KORVAMBDefaultCodePage(), "UTF-8");
}

TEST_F(ProcessCodePage, TruncationCutsNoCharacter) {
  const struct {
    const char* page;
    std::string text;
    int limit;
    std::string cut;
  } cases[] = {
      {"UTF-8", "1234567", 3, "123"},
      {"UTF-8", "1234567", 7, "1234567"},
      {"UTF-8", "1234567", -1, ""},
      {"UTF-8", "aéé", 3, "aé"},
      {"UTF-8", "aéé", 2, "a"},
      {"UTF-8", "日本", 2, ""},
      {"UTF-8", "ae\u0301\u0323x", 4, "a"},       // a combined character is one
      {"UTF-8", "x👩‍👩‍👧y", 12, "x"}, // and so is a family
      {"UTF-8", "🇩🇪🇫🇷", 12, "🇩🇪"},
      {"UTF-8", "a\r\nb", 2, "a"},
      {"UTF-8", "ab\xFF\xFF", 3, "ab\xFF"},
      {"UTF-8", "ab\xC3", 2, "ab"},
      {"CP932", "a\x8E\xB2\x8E\xB2", 4, "a\x8E\xB2"},
      {"GB18030", "a\x81\x30\x81\x30z", 4, "a"},
  };
  for (const auto& [page, text, limit, cut] : cases) {
    ASSERT_TRUE(host::setProcessCodePage(page));
    EXPECT_EQ(KORVAMBStringTruncate_A(text, limit), cut) << page << ' ' << text << ' ' << limit;
  }
}

} // namespace
