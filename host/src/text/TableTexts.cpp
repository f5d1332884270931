#include <host/StringTables.h>

#include <fmt/format.h>

#include <host/Text.h>

#include "Languages.h"
#include "Reports.h"
#include "ResourceTable.h"

namespace host {

TableTexts textsOfTable(const std::string& table, const std::string& language) {
  constexpr int stringTables = 3;
  const std::string folder =
      PathFactory::getPathInstance(stringTables).stringTablePath() + "/" + table;
  TableTexts texts;
  const auto read = [&](std::string_view name) {
    const auto failure = readResourceTable(
        folder, std::string(name), [&texts](std::string_view key, std::u16string_view text) {
          texts.insert_or_assign(std::string(key), utf8(text));
        });
    if (failure)
      reportOnce(
          fmt::format("can't read the string table \"{}/{}.res\": {}", folder, name, *failure));
  };
  read(englishTable);
  const Language* known = findLanguage(language);
  if (known != nullptr && known->table != englishTable) read(known->table);
  return texts;
}

} // namespace host
