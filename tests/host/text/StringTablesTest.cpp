#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <host/ChartTranscoder.h>
#include <host/StringTables.h>

#include "host/data/ScratchFolder.h"
#include "host/text/ErrorCapture.h"
#include "text/ResourceTable.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

std::string tables() { return PathFactory::getPathInstance(3).stringTablePath(); }

class StringTables : public testing::Test {
protected:
  ~StringTables() override {
    unsetenv("CHARTXML_LANG");
    unsetenv("CHARTXML_STRINGS");
    host::setOutputLanguage("");
  }

  static void speak(const char* language) { setenv("CHARTXML_LANG", language, 1); }
};

TEST_F(StringTables, GiveTheTextInTheLanguagesCodePageAndInEnglish) {
  const struct {
    const char *language, *key, *text, *english;
  } cases[] = {
      {"en", "E60712", "Missing", "Missing"},
      {"de", "E61214^1", "F\xE4lle gewichtet mit ^1", "Cases weighted by ^1"},
      {"de", " WK ", " KW ", " WK "},
      {"ja", "X Axis", "X\x8E\xB2", "X Axis"},
      {"ja", "no such key", "no such key", "no such key"},
      {"en", "", "", ""},
  };
  for (const auto& [language, key, text, english] : cases) {
    speak(language);
    const FacSTDictionary dictionary(tables());
    speak("en"); // too late for this dictionary
    int length = -1;
    std::string beside;
    EXPECT_EQ(dictionary.LookUp(key, length, beside), text);
    EXPECT_EQ(beside, english);
    EXPECT_EQ(length, static_cast<int>(std::string(text).size()));
  }
}

// Every language has every key, and its code page holds every text.
TEST_F(StringTables, AreComplete) {
  const auto keysOf = [](const std::string& language) {
    std::vector<std::string> keys;
    const ChartTranscoder page(host::codePageOfLanguage(language));
    const auto failure = host::readResourceTable(
        tables() + "/global", language, [&](std::string_view key, std::u16string_view text) {
          keys.emplace_back(key);
          EXPECT_EQ(page.transcode(page.transcodeTo(text)), text);
        });
    EXPECT_FALSE(failure) << *failure;
    return keys;
  };
  const auto english = keysOf("root");
  EXPECT_EQ(english.size(), 23U);
  EXPECT_EQ(keysOf("de"), english);
  EXPECT_EQ(keysOf("ja"), english);
}

TEST_F(StringTables, LanguageComesFromTheProgramThenTheEnvironment) {
  EXPECT_EQ(OLang::GetLanguageCode(), "en");
  speak("ja");
  EXPECT_EQ(OLang::GetLanguageCode(), "ja");
  EXPECT_TRUE(host::setOutputLanguage("de"));
  EXPECT_FALSE(host::setOutputLanguage("fr"));
  EXPECT_FALSE(host::setOutputLanguage("../de"));
  EXPECT_EQ(OLang::GetLanguageCode(), "de");
  EXPECT_TRUE(host::setOutputLanguage(""));
  ErrorCapture errors;
  speak("ko");
  EXPECT_EQ(OLang::GetLanguageCode(), "en");
  EXPECT_EQ(OLang::GetLanguageCode(), "en");
  EXPECT_THAT(errors.messages(), ElementsAre("CHARTXML_LANG: no string tables for the language "
                                             "\"ko\"; English is used"));
}

TEST_F(StringTables, DamagedTablesFallBackToEnglishAndAreReportedOnce) {
  const ScratchFolder folder;
  const std::string global = (folder.path() / "global").string();
  fs::create_directory(global);
  fs::copy(tables() + "/global/root.res", global);
  fs::copy(tables() + "/global/de.res", global);
  speak("de");
  ErrorCapture errors;
  for (const std::uintmax_t size : {0U, 20U, 60U, 500U}) {
    fs::resize_file(global + "/de.res", size);
    const FacSTDictionary dictionary(folder.path().string());
    int length = 0;
    std::string english;
    EXPECT_EQ(dictionary.LookUp("E60712", length, english), "Missing");
  }
  EXPECT_THAT(errors.messages(),
              ElementsAre("can't read the string table \"" + global +
                          "/de.res\": it is not a whole resource bundle; English texts are used"));
}

TEST_F(StringTables, FolderWithoutTablesIsReportedOnceAndChangesNothing) {
  ErrorCapture errors;
  FacSTDictionary dictionary(tables());
  dictionary.SetGlobalStringTable("/nowhere");
  dictionary.SetGlobalStringTable("/nowhere");
  int length = 0;
  std::string english;
  EXPECT_EQ(dictionary.LookUp("E60712", length, english), "Missing");
  EXPECT_THAT(errors.messages(), ElementsAre("no string tables in \"/nowhere\""));
}

TEST_F(StringTables, ProceduresOwnTableGoesBeforeTheGlobalOne) {
  const ScratchFolder folder;
  fs::create_directories(folder.path() / "global");
  fs::create_directories(folder.path() / "regression");
  fs::copy(tables() + "/global/root.res", folder.path() / "global");
  fs::copy(tables() + "/global/de.res", folder.path() / "regression/root.res");
  setenv("CHARTXML_STRINGS", folder.path().c_str(), 1);
  FacSTDictionary dictionary(tables());
  int length = 0;
  std::string english;
  EXPECT_EQ(dictionary.SetProcedure("REGRESSION"), 0);
  EXPECT_EQ(dictionary.LookUp("X Axis", length, english), "X-Achse");
  for (const char* without : {"MEANS", "../regression", "./regression", "", "a/b"}) {
    EXPECT_EQ(dictionary.SetProcedure(without), 1) << without;
    EXPECT_EQ(dictionary.LookUp("X Axis", length, english), "X Axis");
  }
}

} // namespace
