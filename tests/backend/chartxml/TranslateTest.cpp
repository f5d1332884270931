#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <host/CodePages.h>
#include <host/StringTables.h>

#include "backend/support/BuilderTest.h"

namespace {

class Translate : public BuilderTest {
protected:
  ~Translate() override {
    host::setOutputLanguage("");
    host::setProcessCodePage("UTF-8");
  }

  // A registry that speaks a language in a process with that code page.
  static void start(const std::string& language, const std::string& processPage) {
    ChartXml::Terminate();
    ASSERT_TRUE(host::setOutputLanguage(language));
    ASSERT_TRUE(host::setProcessCodePage(processPage));
  }
};

constexpr const char* languages[] = {"en", "de", "fr", "es",    "it",   "pl",
                                     "ru", "ja", "ko", "zh-cn", "zh-tw"};

TEST_F(Translate, HandsUnknownKeysBackWithTheirLineFeeds) {
  using Piece = std::pair<std::u16string, std::u16string>; // in the key and in the text
  // In code page 932 the second byte of U+8868 is a backslash.
  const auto pieces = rc::gen::container<std::vector<Piece>>(
      rc::gen::elementOf(std::vector<Piece>{{u"\\n", u"\n"},
                                            {u"\\\\n", u"\\\n"},
                                            {u"n", u"n"},
                                            {u"\\x", u"\\x"},
                                            {u"\u8868", u"\u8868"}}));
  for (const std::string page : {"UTF-8", "CP932"}) {
    start("pl", page);
    EXPECT_TRUE(rc::check(page, [&] {
      std::u16string key = u"?";
      std::u16string text = u"?";
      for (const auto& [inKey, inText] : *pieces) {
        key += inKey;
        text += inText;
      }
      const ChartString translated = registry().translate(KORVAMBTranscodeGeneric(key));
      RC_ASSERT(translated.text() == text);
      RC_ASSERT(translated.english() == text);
    }));
  }
}

// The way of a table's text through the language's code page and, as a label that a
// procedure reads and hands in again, through the process's.
TEST_F(Translate, KeepsEveryLetterWhereTheProcessHasTheLanguagesCodePage) {
  for (const char* language : languages) {
    start(language, host::codePageOfLanguage(language));
    for (const char* key :
         {"E60553", "E60561", "E60712", "E61215^1", "E61219^1", "X Axis", " Q "}) {
      const ChartString translated = registry().translate(key);
      EXPECT_EQ(translated.text().find_first_of(u"?\uFFFD"), std::u16string::npos);
      const int label = text(KORVAMBTranscodeGeneric(translated.text()));
      EXPECT_EQ(registry().getUTF8String(label), translated.toUTF8()) << language << key;
    }
  }
}

} // namespace
