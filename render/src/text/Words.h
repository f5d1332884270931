#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include <host/StringTables.h>

#include "text/Json.h"

namespace render {

/// The words of pages and descriptions in one language, by the keys of the string
/// table "page".
class Words {
public:
  explicit Words(const std::string& language) : texts_(host::textsOfTable("page", language)) {}

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
