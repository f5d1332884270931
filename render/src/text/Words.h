#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include <host/StringTables.h>

#include "text/Json.h"

namespace render {

/// The words of a string table in one language, by their keys: those of pages and
/// descriptions, or another table.
class Words {
public:
  explicit Words(const std::string& language, const std::string& table = "page")
      : texts_(host::textsOfTable(table, language)) {}

  /// The text of a key with its parameters, "^1" and so on, replaced. A key without a
  /// text stands for itself.
  std::string operator()(std::string_view key,
                         std::initializer_list<std::string_view> parameters = {}) const;

  /// All of them, for the page's script.
  Json json() const { return texts_; }

private:
  host::TableTexts texts_;
};

} // namespace render
