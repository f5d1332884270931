#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include <host/Export.h>

/// The language of the output: "en", "de", "ja", ...
class OLang {
public:
  /// What setOutputLanguage set, else what CHARTXML_LANG names, else "en". A
  /// CHARTXML_LANG without tables is reported once and "en" used.
  static std::string GetLanguageCode();
};

/// Where things are installed.
class PathFactory {
public:
  /// Kind 3 is the string tables. There is no other kind yet; another number is
  /// reported.
  static const PathFactory& getPathInstance(int kind);

  /// The folder of the compiled string tables: what CHARTXML_STRINGS names, else
  /// share/chartxml/strings beside the library. A table is a folder in it, `global` or
  /// the name of a procedure in lower case, with a bundle of genrb for each language,
  /// English being root.res, and beside it its checksum: `cksum <de.res >de.res.cksum`.
  std::string stringTablePath() const;
};

/// The string table: texts by key in the output language of the time when it was
/// made, with the English text beside them. The tables are read once in a process,
/// a look-up goes to no file.
class FacSTDictionary {
public:
  explicit FacSTDictionary(const std::string& path);
  ~FacSTDictionary();
  FacSTDictionary(const FacSTDictionary&) = delete;
  FacSTDictionary& operator=(const FacSTDictionary&) = delete;

  /// The text of `key` in the output language, in that language's code page, and
  /// its English text in `english`; the procedure's own table goes before the
  /// global one, English before nothing. A key that is not known comes back
  /// unchanged in both. `number` receives the text's length in bytes.
  std::string LookUp(const std::string& key, int& number, std::string& english) const;

  /// Names the procedure whose own table is asked first: the folder of that name
  /// in lower case beside the global one. 0, or 1 when the procedure has no table
  /// of its own, as one whose name is more than letters, digits, '-' and '_' has
  /// none: the global one serves alone.
  int SetProcedure(const std::string& name);

  /// The folder to read tables from. A folder without tables is reported once and
  /// changes nothing. A table that is missing or damaged is reported once and English
  /// used, or the keys themselves where that is missing too.
  void SetGlobalStringTable(const std::string& path);

private:
  struct Tables;
  std::unique_ptr<Tables> tables_;
};

namespace host {

/// Sets the output language; an empty code goes back to CHARTXML_LANG and its
/// default. False, and no change, for a code without tables.
/// A registry that already runs keeps the language it started with.
KORVA_API bool setOutputLanguage(const std::string& code);

/// The code page of the texts that FacSTDictionary gives for a language.
std::string codePageOfLanguage(const std::string& code);

/// Texts by their keys, UTF-8.
using TableTexts = std::map<std::string, std::string, std::less<>>;

/// The texts of a table, such as "page", in a language, whatever the output language;
/// English where the language has none. A table that is missing or damaged is reported
/// once, its texts are not there.
TableTexts textsOfTable(const std::string& table, const std::string& language);

/// share/chartxml beside the library, of the build tree or the installed one.
std::string shareFolder();

} // namespace host
