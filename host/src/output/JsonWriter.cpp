#include "output/JsonWriter.h"

#include <algorithm>
#include <utility>

namespace host {
namespace {

constexpr int indent = 2;

bool standsForItself(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

} // namespace

void JsonWriter::begin(char opening, char closing) {
  separate();
  file_.write(opening);
  open_.push_back({closing});
}

void JsonWriter::end() {
  const Open ended = open_.back();
  open_.pop_back();
  if (!ended.isEmpty) breakLine();
  file_.write(ended.closing);
  if (open_.empty()) file_.write('\n');
}

void JsonWriter::key(std::string_view name) {
  separate();
  writeText(name);
  file_.write(": ");
  hasKey_ = true;
}

void JsonWriter::value(const nlohmann::ordered_json& json) {
  separate();
  write(json);
}

void JsonWriter::text(std::string_view utf8) {
  separate();
  writeText(utf8);
}

void JsonWriter::number(std::string_view text) {
  separate();
  file_.write(text);
}

void JsonWriter::separate() {
  if (std::exchange(hasKey_, false) || open_.empty()) return;
  if (!std::exchange(open_.back().isEmpty, false)) file_.write(',');
  breakLine();
}

void JsonWriter::breakLine() {
  file_.write('\n');
  for (std::size_t i = 0; i < indent * open_.size(); ++i)
    file_.write(' ');
}

void JsonWriter::writeText(std::string_view utf8) {
  if (!std::ranges::all_of(utf8, standsForItself)) {
    write(utf8);
    return;
  }
  file_.write('"');
  file_.write(utf8);
  file_.write('"');
}

/// A line end in the text is one of the layout: those of strings are escaped.
void JsonWriter::write(const nlohmann::ordered_json& json) {
  const std::string text =
      json.dump(indent, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
  std::string_view rest = text;
  for (auto end = rest.find('\n'); end != rest.npos; end = rest.find('\n')) {
    file_.write(rest.substr(0, end));
    breakLine();
    rest.remove_prefix(end + 1);
  }
  file_.write(rest);
}

void writeJson(const std::filesystem::path& path, const nlohmann::ordered_json& json) {
  FileWriter file(path);
  JsonWriter(file).value(json);
  file.write('\n');
  file.finish();
}

} // namespace host
