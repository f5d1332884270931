#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <fmt/format.h>

#include <host/ChartTranscoder.h>
#include <host/OutputText.h>
#include <host/StringTables.h>

#include "host/data/ScratchFolder.h"
#include "host/text/ErrorCapture.h"
#include "text/ResourceTable.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

std::string tables() { return PathFactory::getPathInstance(3).stringTablePath(); }

constexpr std::pair<const char*, const char*> languages[] = {
    {"en", "root"}, {"de", "de"}, {"fr", "fr"}, {"es", "es"},       {"it", "it"},      {"pl", "pl"},
    {"ru", "ru"},   {"ja", "ja"}, {"ko", "ko"}, {"zh-cn", "zh_CN"}, {"zh-tw", "zh_TW"}};

// Puts a checksum beside a table, as the build does.
void seal(const fs::path& table) {
  const std::string command = fmt::format("cksum <'{0}' >'{0}.cksum'", table.native());
  ASSERT_EQ(std::system(command.c_str()), 0);
}

using Texts = std::map<std::string, std::u16string>;

Texts textsOf(const std::string& table, const std::string& name) {
  Texts texts;
  const auto failure = host::readResourceTable(
      tables() + "/" + table, name,
      [&](std::string_view key, std::u16string_view text) { texts.emplace(key, text); });
  EXPECT_FALSE(failure) << *failure;
  return texts;
}

std::vector<std::string> keysOf(const Texts& texts) {
  std::vector<std::string> keys;
  for (const auto& [key, text] : texts)
    keys.push_back(key);
  return keys;
}

// The text as a pattern whose parameters are "^1", "^2", ..., as many as its key
// says, each of which has to be in it.
std::string shownWithItsOwnSigns(const std::string& key, std::u16string_view text) {
  const std::string pattern = ChartTranscoder("UTF-8").transcodeTo(text);
  OmComposite composite(OmStringCell(pattern, 0, 0), nullptr, true);
  const std::size_t sign = key.find('^');
  const int count = sign == std::string::npos ? 0 : std::stoi(key.substr(sign + 1));
  for (int n = 1; n <= count; ++n) {
    const std::string parameter = fmt::format("^{}", n);
    EXPECT_THAT(pattern, testing::HasSubstr(parameter));
    composite.Add(OmStringCell(parameter, 0, 0));
  }
  return composite.Text();
}

class StringTables : public testing::Test {
protected:
  ~StringTables() override {
    unsetenv("CHARTXML_LANG");
    unsetenv("CHARTXML_STRINGS");
    host::setOutputLanguage("");
  }

  static void speak(const char* language) { setenv("CHARTXML_LANG", language, 1); }

  struct Answer {
    std::string text, english;
    int number = -1;
    bool operator==(const Answer&) const = default;
  };
  static Answer ask(const FacSTDictionary& dictionary, const std::string& key) {
    Answer answer;
    answer.text = dictionary.LookUp(key, answer.number, answer.english);
    return answer;
  }
};

TEST_F(StringTables, GiveTheTextInTheLanguagesCodePageAndInEnglish) {
  const struct {
    const char *language, *key, *text, *english;
  } cases[] = {
      {"en", "E60712", "Missing", "Missing"},
      {"de", "E61214^1", "F\xE4lle gewichtet mit ^1", "Cases weighted by ^1"},
      {"de", " WK ", " KW ", " WK "},
      {"pl", "Y Axis", "O\x9C Y", "Y Axis"},
      {"ru", "Y Axis", "\xCE\xF1\xFC Y", "Y Axis"},
      {"ja", "X Axis", "X\x8E\xB2", "X Axis"},
      {"ko", "X Axis", "X\xC3\xE0", "X Axis"},
      {"zh-cn", "X Axis", "X \xD6\xE1", "X Axis"},
      {"zh-tw", "X Axis", "X \xB6\x62", "X Axis"},
      {"en", "", "", ""},
  };
  for (const auto& [language, key, text, english] : cases) {
    speak(language);
    const FacSTDictionary dictionary(tables());
    speak("en"); // too late for this dictionary
    EXPECT_EQ(ask(dictionary, key),
              (Answer{text, english, static_cast<int>(std::string(text).size())}));
  }
}

TEST_F(StringTables, HandUnknownKeysBack) {
  speak("ja");
  const FacSTDictionary dictionary(tables());
  EXPECT_TRUE(rc::check([&](const std::string& key) {
    RC_ASSERT(ask(dictionary, "?" + key) ==
              (Answer{"?" + key, "?" + key, static_cast<int>(key.size()) + 1}));
  }));
}

// Every language has every key of every table, its code page holds every text and
// the English beside it, and a pattern shows each of its parameters and has
// nothing else that means something to a pattern.
TEST_F(StringTables, AreComplete) {
  for (const auto& [language, name] : languages) {
    speak(language);
    FacSTDictionary dictionary(tables());
    const ChartTranscoder page(host::codePageOfLanguage(language));
    for (const auto& folder : fs::directory_iterator(tables())) {
      const std::string table = folder.path().filename();
      ASSERT_EQ(dictionary.SetProcedure(table), 0);
      const auto texts = textsOf(table, name);
      const auto english = textsOf(table, "root");
      ASSERT_THAT(keysOf(texts), testing::ElementsAreArray(keysOf(english))) << table << language;
      for (const auto& [key, text] : texts) {
        const Answer answer = ask(dictionary, key);
        EXPECT_EQ(page.transcode(answer.text), text) << table << language;
        EXPECT_EQ(page.transcode(answer.english), english.at(key)) << table << language;
        EXPECT_EQ(shownWithItsOwnSigns(key, text), ChartTranscoder("UTF-8").transcodeTo(text));
      }
    }
  }
}

TEST_F(StringTables, LanguageComesFromTheProgramThenTheEnvironment) {
  EXPECT_EQ(OLang::GetLanguageCode(), "en");
  speak("ja");
  EXPECT_EQ(OLang::GetLanguageCode(), "ja");
  EXPECT_TRUE(host::setOutputLanguage("zh-tw"));
  for (const char* none : {"nl", "zh_TW", "DE", "../de"})
    EXPECT_FALSE(host::setOutputLanguage(none)) << none;
  EXPECT_EQ(OLang::GetLanguageCode(), "zh-tw");
  EXPECT_TRUE(host::setOutputLanguage(""));

  const ScratchFolder folder; // has no tables
  setenv("CHARTXML_STRINGS", folder.path().c_str(), 1);
  ErrorCapture errors;
  speak("ko");
  EXPECT_EQ(OLang::GetLanguageCode(), "en");
  EXPECT_EQ(OLang::GetLanguageCode(), "en");
  EXPECT_THAT(errors.messages(), ElementsAre("CHARTXML_LANG: no string tables for the language "
                                             "\"ko\"; English is used"));
}

void overwrite(const fs::path& file, std::streamoff place, char byte) {
  std::fstream(file, std::ios::binary | std::ios::in | std::ios::out).seekp(place).put(byte);
}

TEST_F(StringTables, DamagedTablesFallBackToEnglishAndAreReportedOnce) {
  const std::string damaged = "it is damaged, its checksum is another";
  const std::string foreign = "it is not a resource bundle for this machine";
  const struct {
    const char* name;
    void (*damage)(const fs::path& file);
    std::string reason;
  } cases[] = {
      {"gone", [](const fs::path& file) { fs::remove(file); }, "there is no such file"},
      {"folder", [](const fs::path& file) { fs::remove(file), fs::create_directory(file); },
       "there is no such file"},
      {"empty", [](const fs::path& file) { fs::resize_file(file, 0); }, damaged},
      {"cut", [](const fs::path& file) { fs::resize_file(file, 500); }, damaged},
      {"longer", [](const fs::path& file) { fs::resize_file(file, 5000); }, damaged},
      {"offset", [](const fs::path& file) { overwrite(file, 35, '\xFF'); }, damaged},
      {"unsealed", [](const fs::path& file) { fs::remove(file.native() + ".cksum"); },
       "there is no checksum in \"de.res.cksum\""},
      {"broken seal", [](const fs::path& file) { std::ofstream(file.native() + ".cksum") << "de"; },
       "there is no checksum in \"de.res.cksum\""},
      {"text",
       [](const fs::path& file) {
         std::ofstream(file) << "de {}";
         seal(file);
       },
       foreign},
      {"other endianness",
       [](const fs::path& file) {
         overwrite(file, 8, '\1');
         seal(file);
       },
       foreign},
  };
  const ScratchFolder scratch;
  speak("de");
  for (const auto& [name, damage, reason] : cases) {
    const std::string global = scratch.path() / name / "global";
    fs::create_directories(global);
    for (const char* file : {"root.res", "root.res.cksum", "de.res", "de.res.cksum"})
      fs::copy(tables() + "/global/" + file, global);
    damage(global + "/de.res");
    ErrorCapture errors;
    for (int time = 0; time < 2; ++time)
      EXPECT_EQ(ask(FacSTDictionary(scratch.path() / name), "E60712").text, "Missing") << name;
    EXPECT_THAT(errors.messages(),
                ElementsAre(fmt::format("can't read the string table \"{}/de.res\": {}; English "
                                        "texts are used",
                                        global, reason)));
  }
}

TEST_F(StringTables, NoWrongByteGetsThrough) {
  const ScratchFolder scratch;
  fs::copy(tables() + "/global", scratch.path());
  const fs::path file = scratch.path() / "ru.res";
  std::fstream bytes(file, std::ios::binary | std::ios::in | std::ios::out);
  for (std::streamoff place = 0; place < static_cast<std::streamoff>(fs::file_size(file));
       ++place) {
    const auto right = static_cast<char>(bytes.seekg(place).get());
    overwrite(file, place, static_cast<char>(right ^ 0x20));
    EXPECT_TRUE(host::readResourceTable(scratch.path(), "ru", [](auto, auto) { FAIL(); })) << place;
    overwrite(file, place, right);
  }
  // ICU keeps what it read once mapped.
  int texts = 0;
  const auto count = [&texts](auto, auto) { ++texts; };
  EXPECT_FALSE(host::readResourceTable(scratch.path(), "ru", count));
  fs::resize_file(file, 4);
  EXPECT_FALSE(host::readResourceTable(scratch.path(), "ru", count));
  EXPECT_EQ(texts, 2 * 23);
}

TEST_F(StringTables, FolderWithoutTablesIsReportedOnceAndChangesNothing) {
  ErrorCapture errors;
  FacSTDictionary dictionary(tables());
  dictionary.SetGlobalStringTable("/nowhere");
  dictionary.SetGlobalStringTable("/nowhere");
  EXPECT_EQ(ask(dictionary, "E60712").text, "Missing");
  EXPECT_THAT(errors.messages(), ElementsAre("no string tables in \"/nowhere\""));
}

TEST_F(StringTables, ProceduresOwnTableGoesBeforeTheGlobalOne) {
  const ScratchFolder folder;
  fs::create_directories(folder.path() / "global");
  fs::create_directories(folder.path() / "regression");
  for (const std::string end : {".res", ".res.cksum"}) {
    fs::copy(tables() + "/global/root" + end, folder.path() / "global");
    fs::copy(tables() + "/global/de" + end, folder.path() / ("regression/root" + end));
  }
  setenv("CHARTXML_STRINGS", folder.path().c_str(), 1);
  FacSTDictionary dictionary(tables());
  EXPECT_EQ(dictionary.SetProcedure("REGRESSION"), 0);
  EXPECT_EQ(ask(dictionary, "X Axis").text, "X-Achse");
  for (const char* without : {"MEANS", "../regression", "./regression", "", "a/b"}) {
    EXPECT_EQ(dictionary.SetProcedure(without), 1) << without;
    EXPECT_EQ(ask(dictionary, "X Axis").text, "X Axis");
  }
}

TEST_F(StringTables, ProceduresOwnTableIsInTheOutputLanguage) {
  speak("fr");
  FacSTDictionary dictionary(tables());
  EXPECT_EQ(ask(dictionary, "All penguins").text, "All penguins") << "not known yet";
  EXPECT_EQ(dictionary.SetProcedure("penguins"), 0);
  EXPECT_EQ(ask(dictionary, "All penguins").text, "Tous les manchots");
  EXPECT_EQ(ask(dictionary, "E60712").text, "Manquant");
}

} // namespace
