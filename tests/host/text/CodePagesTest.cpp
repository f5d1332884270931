#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <unicode/localpointer.h>
#include <unicode/ubrk.h>

#include <host/ChartTranscoder.h>
#include <host/CodePages.h>

#include "host/text/ErrorCapture.h"

namespace {

constexpr const char* pages[] = {"UTF-8", "CP1250", "CP1251", "CP1252", "CP932",  "CP936",
                                 "CP949", "CP950",  "CP1258", "EUC-JP", "GB18030"};

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
      {"1252", "\xDF\x80", u"ß€"},
      {"cp-949", "\xC7\xD1\\", u"한\\"},
      {"cp_932", "X\x8E\xB2", u"X軸"},
      {"65001", "日", u"日"},
      {"28591", "\xE9\x80", u"é\u0080"},
      {"037", "\xC1\x82", u"Ab"},
      {"Shift_JIS", "\x8E\xB2", u"軸"},
  };
  for (const auto& [page, bytes, text] : cases) {
    const ChartTranscoder transcoder(page);
    EXPECT_EQ(transcoder.transcode(bytes), text) << page;
    EXPECT_EQ(transcoder.transcodeTo(text), bytes) << page;
  }
}

TEST(ChartTranscoder, ReplacesWhatThePageDoesNotHoldAndStartsAfresh) {
  const struct {
    const char* page;
    std::u16string text;
    std::string bytes, invalid;
    std::u16string read;
  } cases[] = {
      {"CP1250", u"aé日", "a\xE9?", "", u""},
      {"CP1251", u"aé²", "a??", "\x98", u"\u0098"},
      {"CP1252", u"ł日é", "??\xE9", "", u""},
      {"CP932", u"é日²", "?\x93\xFA?", "\x81=\x81\x20\x85\x40", u"\uFFFD=\uFFFD \uFFFD"},
      {"CP936", u"é²日", "\xA8\xA6?\xC8\xD5", "\x81-\x81\x30", u"\uFFFD-\uFFFD0"},
      {"CP949", u"é日", "?\xEC\xED", "\xC9\xA1-\xB0", u"\uE000-\uFFFD"},
      {"CP950", u"é日", "?\xA4\xE9", "\xA4 -\xA4", u"\uFFFD -\uFFFD"},
      {"EUC-JP", u"한日", "?\xC6\xFC", "\xC6-\xA9\xA1", u"\uFFFD-\uFFFD"},
  };
  for (const auto& [page, text, bytes, invalid, read] : cases) {
    const ChartTranscoder transcoder(page);
    EXPECT_EQ(transcoder.transcodeTo(text), bytes) << page;
    EXPECT_EQ(transcoder.transcode(invalid), read) << page;
  }
  const ChartTranscoder shifting("ISO-2022-JP");
  EXPECT_EQ(shifting.transcode("\x1B$B<4"), u"軸");
  EXPECT_EQ(shifting.transcode("<4"), u"<4");
}

// Bytes that are not valid come back as one "?" each time that they were read as
// U+FFFD.
TEST(ChartTranscoder, GivesWhateverItReadBack) {
  for (const char* page : pages) {
    const ChartTranscoder transcoder(page);
    EXPECT_TRUE(rc::check(page, [&](const std::string& bytes) {
      const std::u16string text = transcoder.transcode(bytes);
      const bool hasInvalid = text.find(u'\uFFFD') != std::u16string::npos;
      const std::u16string again = transcoder.transcode(transcoder.transcodeTo(text));
      RC_ASSERT((hasInvalid ? again.size() == text.size() : again == text));
    }));
  }
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
  for (const char* none : {"", "no such page", "CP", "CP99999", "x11-compound-text"})
    EXPECT_FALSE(host::setProcessCodePage(none)) << none;
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
      {"UTF-8", "👩a", 1, ""},
      {"UTF-8", "a\r\nb", 2, "a"},
      {"UTF-8", "ab\xFF\xFF", 3, "ab\xFF"},
      {"UTF-8", "ab\xC3", 2, "ab"},
      {"CP932", "a\x8E\xB2\x8E\xB2", 4, "a\x8E\xB2"},
      {"CP932", "a\xB6\xDE-", 2, "a"},  // a sound mark belongs to its letter
      {"CP1258", "xe\xEC\x61", 2, "x"}, // an accent as well
      {"UTF-16LE", std::string("a\0b\0", 4), 3, std::string("a\0", 2)},
      {"GB18030", "a\x81\x30\x81\x30z", 4, "a"},
  };
  for (const auto& [page, text, limit, cut] : cases) {
    ASSERT_TRUE(host::setProcessCodePage(page));
    EXPECT_EQ(KORVAMBStringTruncate_A(text, limit), cut) << page << ' ' << text << ' ' << limit;
  }
}

// The longest run of whole characters that fits, by way of the text's own boundaries.
std::string longestFitting(const std::u16string& text, int limit) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::LocalUBreakIteratorPointer characters(ubrk_open(
      UBRK_CHARACTER, "en", text.data(), static_cast<std::int32_t>(text.size()), &status));
  std::string fitting;
  for (auto end = ubrk_first(characters.getAlias()); end != UBRK_DONE;
       end = ubrk_next(characters.getAlias())) {
    std::string prefix =
        KORVAMBTranscodeGeneric(std::u16string_view(text).substr(0, static_cast<std::size_t>(end)));
    if (static_cast<int>(prefix.size()) <= limit) fitting = std::move(prefix);
  }
  return fitting;
}

TEST_F(ProcessCodePage, TruncationGivesTheLongestPrefixOfWholeCharacters) {
  const auto texts = rc::gen::container<std::vector<std::u16string>>(rc::gen::elementOf(
      std::vector<std::u16string>{u"a", u"é", u"e\u0301", u"\u0309", u"日", u"ｶﾞ", u"한", u"ł",
                                  u"Ж", u"\r\n", u"\U0001F469", u"\u200D", u"\U0001F1E9",
                                  u"\uFE0F"}));
  for (const char* page : pages) {
    ASSERT_TRUE(host::setProcessCodePage(page));
    EXPECT_TRUE(rc::check(page, [&] {
      std::u16string text;
      for (const std::u16string& piece : *texts)
        text += piece;
      const std::string bytes = KORVAMBTranscodeGeneric(text);
      const int limit = *rc::gen::inRange(-1, static_cast<int>(bytes.size()) + 2);
      RC_ASSERT(KORVAMBStringTruncate_A(bytes, limit) ==
                longestFitting(ChartTranscoder(page).transcode(bytes), limit));
    }));
    EXPECT_TRUE(rc::check(page, [&](const std::string& bytes) {
      const int limit = *rc::gen::inRange(0, static_cast<int>(bytes.size()) + 2);
      const std::string cut = KORVAMBStringTruncate_A(bytes, limit);
      RC_ASSERT(bytes.starts_with(cut));
      RC_ASSERT(static_cast<int>(cut.size()) <= limit);
      const ChartTranscoder transcoder(page);
      RC_ASSERT(transcoder.transcode(bytes).starts_with(transcoder.transcode(cut)));
    }));
  }
}

} // namespace
