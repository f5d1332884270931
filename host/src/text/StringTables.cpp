#include <host/StringTables.h>

#include <filesystem>
#include <unordered_map>
#include <utility>

#include <fmt/format.h>

#include <host/ChartTranscoder.h>

#include "Languages.h"
#include "Reports.h"
#include "ResourceTable.h"

namespace {

struct Text {
  std::string display;
  std::string english;
};

using Table = std::unordered_map<std::string, Text>;

const Text* find(const Table& table, const std::string& key) {
  const auto found = table.find(key);
  return found == table.end() ? nullptr : &found->second;
}

// Names of procedures are words; anything else could lead out of the folder.
std::string folderName(const std::string& procedure) {
  std::string name;
  for (const char c : procedure) {
    const bool isUpper = c >= 'A' && c <= 'Z';
    const bool isWord =
        isUpper || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
    if (!isWord) return {};
    name += isUpper ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return name;
}

} // namespace

struct FacSTDictionary::Tables {
  host::Language language = *host::findLanguage(OLang::GetLanguageCode());
  ChartTranscoder codePage{language.codePage};
  std::string folder;
  std::string procedure;
  Table global;
  Table own; ///< of the procedure

  // The texts of one table, English where the language has none.
  Table read(const std::string& tableFolder) const {
    Table table;
    const bool inEnglish = readInto(tableFolder, host::englishTable, "",
                                    [&](std::string_view key, std::u16string_view text) {
                                      std::string bytes = codePage.transcodeTo(text);
                                      table.insert_or_assign(std::string(key), Text{bytes, bytes});
                                    });
    if (language.table == host::englishTable) return table;
    readInto(tableFolder, language.table, inEnglish ? "; English texts are used" : "",
             [&](std::string_view key, std::u16string_view text) {
               Text& entry = table[std::string(key)];
               entry.display = codePage.transcodeTo(text);
               if (entry.english.empty()) entry.english = entry.display;
             });
    return table;
  }

private:
  static bool readInto(const std::string& tableFolder, std::string_view name,
                       std::string_view consequence, const host::TextTaker& take) {
    const auto failure = host::readResourceTable(tableFolder, std::string(name), take);
    if (!failure) return true;
    host::reportOnce(fmt::format("can't read the string table \"{}/{}.res\": {}{}", tableFolder,
                                 name, *failure, consequence));
    return false;
  }
};

FacSTDictionary::FacSTDictionary(const std::string& path) : tables_(std::make_unique<Tables>()) {
  SetGlobalStringTable(path);
}

FacSTDictionary::~FacSTDictionary() = default;

std::string FacSTDictionary::LookUp(const std::string& key, int& number,
                                    std::string& english) const {
  const Text* text = find(tables_->own, key);
  if (!text) text = find(tables_->global, key);
  const std::string& display = text ? text->display : key;
  english = text ? text->english : key;
  number = static_cast<int>(display.size());
  return display;
}

int FacSTDictionary::SetProcedure(const std::string& name) {
  std::string procedure = folderName(name);
  if (procedure != tables_->procedure) {
    const std::string folder = tables_->folder + "/" + procedure;
    std::error_code failed;
    const bool hasOwn = !procedure.empty() && std::filesystem::is_directory(folder, failed);
    tables_->own = hasOwn ? tables_->read(folder) : Table();
    tables_->procedure = std::move(procedure);
  }
  return tables_->own.empty() ? 1 : 0;
}

void FacSTDictionary::SetGlobalStringTable(const std::string& path) {
  if (!path.empty() && path == tables_->folder) return;
  std::error_code failed;
  if (!std::filesystem::is_directory(path + "/global", failed)) {
    host::reportOnce(fmt::format("no string tables in \"{}\"", path));
    return;
  }
  tables_->global = tables_->read(path + "/global");
  tables_->own.clear();
  tables_->procedure.clear();
  tables_->folder = path;
}
