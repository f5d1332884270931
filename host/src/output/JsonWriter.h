#pragma once

#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "output/FileWriter.h"

namespace host {

/// Writes JSON piece by piece, so that what is large need not be one value in memory.
/// The layout is that of dump(2); bytes that are not UTF-8 become U+FFFD, a number that
/// JSON does not know becomes null. Throws ChartException when the file cannot be
/// written.
class JsonWriter {
public:
  explicit JsonWriter(FileWriter& file) : file_(file) {}

  void beginObject() { begin('{', '}'); }
  void beginArray() { begin('[', ']'); }
  /// Ends the object or array that was begun last.
  void end();

  /// The name of the value that comes next.
  void key(std::string_view name);
  void value(const nlohmann::ordered_json& json);
  void member(std::string_view name, const nlohmann::ordered_json& json) {
    key(name);
    value(json);
  }
  /// A text; most are of characters that stand for themselves, which costs a copy.
  void text(std::string_view utf8);
  /// A number as its text, which keeps the digits as they were.
  void number(std::string_view text);

private:
  struct Open {
    char closing;
    bool isEmpty = true;
  };

  void begin(char opening, char closing);
  /// What stands before a member or an element.
  void separate();
  void breakLine();
  void write(const nlohmann::ordered_json& json);
  void writeText(std::string_view utf8);

  FileWriter& file_;
  std::vector<Open> open_;
  bool hasKey_ = false;
};

/// Writes a JSON file as JsonWriter does. Throws ChartException.
void writeJson(const std::filesystem::path& path, const nlohmann::ordered_json& json);

} // namespace host
