#include "ResourceTable.h"

#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <unicode/localpointer.h>
#include <unicode/ures.h>

namespace host {
namespace {

using Texts = std::vector<std::pair<std::string, std::u16string>>;

std::uint32_t shiftIn(std::uint32_t code, std::uintmax_t byte) {
  constexpr std::uint32_t polynomial = 0x04C11DB7;
  constexpr std::uint32_t highest = 0x80000000;
  code ^= static_cast<std::uint32_t>(byte & 0xFF) << 24;
  for (int bit = 0; bit < 8; ++bit)
    code = code << 1 ^ ((code & highest) != 0 ? polynomial : 0);
  return code;
}

// The checksum of POSIX's cksum: a cyclic redundancy code over the bytes and their
// number.
std::uint32_t checksum(std::string_view bytes) {
  std::uint32_t code = 0;
  for (const char c : bytes)
    code = shiftIn(code, static_cast<unsigned char>(c));
  for (std::uintmax_t size = bytes.size(); size != 0; size >>= 8)
    code = shiftIn(code, size);
  return ~code;
}

// ICU maps a bundle and follows the offsets in it without asking whether they lead
// out of it: a damaged one must not come before it. Nothing, or why it must not.
std::optional<std::string> damageOf(const std::filesystem::path& file) {
  std::error_code failed;
  if (!std::filesystem::is_regular_file(file, failed)) return "there is no such file";
  std::ifstream seal(file.native() + ".cksum");
  std::uint32_t code = 0;
  std::uintmax_t size = 0;
  if (!(seal >> code >> size))
    return fmt::format("there is no checksum in \"{}.cksum\"", file.filename().native());

  constexpr auto damaged = "it is damaged, its checksum is another";
  if (std::filesystem::file_size(file, failed) != size) return damaged;
  std::ifstream in(file, std::ios::binary);
  if (!in) return "it can't be opened";
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  if (bytes.size() != size || checksum(bytes) != code) return damaged;
  return std::nullopt;
}

// Keys of a bundle are of few characters only; others are written "%5E".
std::string decodeKey(std::string_view key) {
  std::string text;
  for (std::size_t i = 0; i < key.size(); ++i) {
    unsigned char byte = 0;
    const char* digits = key.data() + i + 1;
    const bool isEscape = key[i] == '%' && i + 2 < key.size() &&
                          std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2;
    text += isEscape ? static_cast<char>(byte) : key[i];
    if (isEscape) i += 2;
  }
  return text;
}

// The texts of a bundle, or why there are none.
std::optional<std::string> readBundle(const std::string& folder, const std::string& name,
                                      Texts& texts) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::LocalUResourceBundlePointer bundle(
      ures_openDirect(folder.c_str(), name.c_str(), &status));
  if (U_FAILURE(status)) return "it is not a resource bundle for this machine";

  while (ures_hasNext(bundle.getAlias())) {
    const char* key = nullptr;
    std::int32_t length = 0;
    status = U_ZERO_ERROR;
    const char16_t* text = ures_getNextString(bundle.getAlias(), &length, &key, &status);
    if (U_SUCCESS(status) && key)
      texts.emplace_back(decodeKey(key), std::u16string(text, static_cast<std::size_t>(length)));
  }
  return std::nullopt;
}

} // namespace

std::optional<std::string> readResourceTable(const std::string& folder, const std::string& name,
                                             const TextTaker& take) {
  // ICU keeps a bundle mapped for good and would follow its old offsets in a file
  // that was written anew: it is asked for each file once.
  static auto& known = *new std::map<std::filesystem::path, Texts>;

  std::error_code failed;
  const std::filesystem::path absolute = std::filesystem::absolute(folder, failed);
  const std::filesystem::path file = absolute / (name + ".res");
  auto table = known.find(file);
  if (table == known.end()) {
    Texts texts;
    auto failure = damageOf(file);
    if (!failure) failure = readBundle(absolute, name, texts);
    if (failure) return failure;
    table = known.emplace(file, std::move(texts)).first;
  }
  for (const auto& [key, text] : table->second)
    take(key, text);
  return std::nullopt;
}

} // namespace host
