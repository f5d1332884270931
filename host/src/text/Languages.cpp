#include "Languages.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include <fmt/format.h>

#include <host/StringTables.h>

#include "Reports.h"

namespace host {
namespace {

constexpr std::string_view western = "CP1252";

constexpr Language languages[] = {
    {"en", western, englishTable}, {"de", western, "de"},       {"fr", western, "fr"},
    {"es", western, "es"},         {"it", western, "it"},       {"pl", "CP1250", "pl"},
    {"ru", "CP1251", "ru"},        {"ja", "CP932", "ja"},       {"ko", "CP949", "ko"},
    {"zh-cn", "CP936", "zh_CN"},   {"zh-tw", "CP950", "zh_TW"},
};

std::string& chosenLanguage() {
  static std::string code;
  return code;
}

unsigned changes = 0;

bool hasTables(std::string_view code) {
  const Language* language = findLanguage(code);
  if (!language) return false;
  if (language->table == englishTable) return true;
  constexpr int stringTables = 3;
  const std::string folder = PathFactory::getPathInstance(stringTables).stringTablePath();
  std::error_code failed;
  return std::filesystem::is_regular_file(globalTableFile(folder, *language), failed);
}

} // namespace

const Language* findLanguage(std::string_view code) {
  const auto* found = std::ranges::find(languages, code, &Language::code);
  return found == std::end(languages) ? nullptr : found;
}

std::string globalTableFile(const std::string& folder, const Language& language) {
  return fmt::format("{}/global/{}.res", folder, language.table);
}

bool setOutputLanguage(const std::string& code) {
  if (!code.empty() && !hasTables(code)) return false;
  chosenLanguage() = code;
  ++changes;
  return true;
}

unsigned languageChanges() { return changes; }

std::string codePageOfLanguage(const std::string& code) {
  const Language* language = findLanguage(code);
  return std::string(language ? language->codePage : western);
}

} // namespace host

std::string OLang::GetLanguageCode() {
  if (!host::chosenLanguage().empty()) return host::chosenLanguage();
  const char* named = std::getenv("CHARTXML_LANG");
  if (!named || !*named) return "en";
  if (host::hasTables(named)) return named;
  host::reportOnce(fmt::format(
      "CHARTXML_LANG: no string tables for the language \"{}\"; English is used", named));
  return "en";
}
