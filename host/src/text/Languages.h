#pragma once

#include <string>
#include <string_view>

namespace host {

/// A language that texts can be given in.
struct Language {
  std::string_view code;
  std::string_view codePage; ///< of its texts as FacSTDictionary gives them
  std::string_view table;    ///< the name of its string tables
};

/// The name of the English tables, which every other language falls back to.
inline constexpr std::string_view englishTable = "root";

/// The language of that code, or null; codes are compared exactly.
const Language* findLanguage(std::string_view code);

/// The compiled global table of a language below a folder of string tables.
std::string globalTableFile(const std::string& folder, const Language& language);

} // namespace host
