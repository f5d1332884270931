#include "data/JsonFile.h"

#include <algorithm>
#include <sstream>

#include <fmt/format.h>
#include <host/DataSet.h>

#include "data/DisplayFormat.h"
#include "data/File.h"
#include "data/Refusal.h"

namespace host {

using nlohmann::json;

namespace {

/// What the parser says without the token that it read last, which may be of any length.
std::string withoutToken(const std::string& reason) {
  const auto token = reason.find("; last read");
  if (token == reason.npos) return reason;
  const auto expected = std::min(reason.rfind("; expected"), reason.size());
  return fmt::format("{}{}", reason.substr(0, token), reason.substr(expected));
}

/// The message with the place of the last byte that the parser took.
std::string at(std::istringstream& in, const std::filesystem::path& file, std::string_view reason) {
  const auto taken =
      std::max<std::streamoff>(in.rdbuf()->pubseekoff(0, std::ios::cur, std::ios::in), 1);
  const std::string_view before = in.view().substr(0, static_cast<std::size_t>(taken) - 1);
  const auto line = 1 + std::ranges::count(before, '\n');
  const auto column = before.size() - (before.rfind('\n') + 1) + 1;
  return fmt::format("{}:{}:{}: {}", file.native(), line, column, reason);
}

template <class Json>
Json readAs(const std::filesystem::path& file, const typename Json::parser_callback_t& keep) {
  std::string text;
  readFile(file, [&](std::string_view piece) { text += piece; });
  std::istringstream in(std::move(text));
  try {
    return Json::parse(in, keep);
  } catch (const json::parse_error& error) {
    throw DataError(at(in, file, withoutToken(reasonOf(error))));
  } catch (const json::out_of_range&) {
    throw DataError(at(in, file, "a number is out of the range of numbers"));
  }
}

} // namespace

std::string reasonOf(const json::exception& error) {
  // "[json.exception.parse_error.101] parse error at line 1, column 2: <reason>", or
  // without a place
  std::string_view what = error.what();
  what.remove_prefix(std::min(what.find("] ") + 2, what.size()));
  if (what.starts_with("parse error")) what.remove_prefix(what.find(": ") + 2);
  return std::string(what);
}

json readJson(const std::filesystem::path& file, const json::parser_callback_t& keep) {
  return readAs<json>(file, keep);
}

nlohmann::ordered_json readOrderedJson(const std::filesystem::path& file) {
  return readAs<nlohmann::ordered_json>(file, nullptr);
}

std::string shownJson(const json& value) {
  if (value.is_structured()) return value.is_array() ? "a list" : "an object";
  return shown(value.is_string() ? value.get_ref<const std::string&>() : value.dump());
}

const json* member(const json& object, const char* key) {
  const auto found = object.find(key);
  return found == object.end() ? nullptr : &*found;
}

const std::string& textOf(const json& value, std::string_view what) {
  if (!value.is_string())
    throw Refusal(fmt::format("{} must be a text, not {}", what, shownJson(value)));
  const auto& text = value.get_ref<const std::string&>();
  if (text.size() > longestText)
    throw Refusal(fmt::format("{} has more than {} bytes", what, longestText));
  if (text.find('\0') != std::string::npos)
    throw Refusal(fmt::format("{} holds a NUL character", what));
  return text;
}

std::string textMember(const json& object, const char* key, std::string_view fallback) {
  const json* value = member(object, key);
  return value ? textOf(*value, fmt::format("\"{}\"", key)) : std::string(fallback);
}

const json& listMember(const json& object, const char* key) {
  static const json none = json::array();
  const json* value = member(object, key);
  if (value && !value->is_array()) throw Refusal(fmt::format("\"{}\" must be a list", key));
  return value ? *value : none;
}

} // namespace host
