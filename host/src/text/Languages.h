#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <host/StringTables.h>

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

/// How often the output language was set so far.
unsigned languageChanges();

/// What is made of the output language's code: once, and anew when the language was
/// set. What CHARTXML_LANG names is looked at once.
template <class Made> class OfOutputLanguage {
public:
  template <class Make> const Made& get(Make make) {
    if (!made_ || changes_ != languageChanges()) {
      made_.emplace(make(OLang::GetLanguageCode()));
      changes_ = languageChanges();
    }
    return *made_;
  }

private:
  std::optional<Made> made_;
  unsigned changes_ = 0;
};

/// The compiled global table of a language below a folder of string tables.
std::string globalTableFile(const std::string& folder, const Language& language);

} // namespace host
