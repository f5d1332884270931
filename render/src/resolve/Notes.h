#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <host/Finding.h>

#include "text/Words.h"

namespace render {

/// What a reader of the picture must know and the picture cannot show: parts of
/// the chart that are not drawn, values that are left out. Each is told once, in the
/// chart's language. Findings are English, as in the error log: they are for whom the
/// calls of the procedure are for.
class Notes {
public:
  explicit Notes(std::string language = "en") : language_(std::move(language)) {}

  /// A text of the string table "notes" with its parameters.
  void add(std::string_view key, std::initializer_list<std::string_view> parameters = {});
  /// What is told outside of the page too.
  void add(host::Finding finding);
  /// A text of the table that is part of a note.
  std::string text(std::string_view key, std::initializer_list<std::string_view> parameters = {});
  const std::vector<std::string>& all() const { return notes_; }
  const std::vector<host::Finding>& findings() const { return findings_; }

private:
  void addText(std::string note);

  std::string language_;
  std::optional<Words> words_; ///< read when something is noted: most charts need none
  std::vector<std::string> notes_;
  std::vector<host::Finding> findings_;
};

} // namespace render
