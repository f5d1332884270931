#include "ResourceTable.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>

#include <unicode/localpointer.h>
#include <unicode/ures.h>

namespace host {
namespace {

// A bundle says how long it is. ICU maps the file without asking and reads past
// the end of one that was cut off.
bool isWhole(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  const auto read = [&in](std::streamoff place, auto value) {
    char bytes[sizeof value] = {};
    in.seekg(place);
    in.read(bytes, sizeof bytes);
    std::memcpy(&value, bytes, sizeof value);
    return value;
  };
  const auto headerSize = read(0, std::uint16_t{});
  const auto magic = read(2, std::array<unsigned char, 2>{});
  constexpr std::streamoff totalWords = 16; // behind the root and three indexes
  const auto words = read(headerSize + totalWords, std::uint32_t{});
  std::error_code failed;
  return in && magic == std::array<unsigned char, 2>{0xda, 0x27} &&
         std::filesystem::file_size(file, failed) == headerSize + std::uintmax_t{words} * 4;
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

} // namespace

std::optional<std::string> readResourceTable(const std::string& folder, const std::string& name,
                                             const TextTaker& take) {
  std::error_code failed;
  const std::filesystem::path absolute = std::filesystem::absolute(folder, failed);
  const std::filesystem::path file = absolute / (name + ".res");
  if (!std::filesystem::exists(file, failed)) return "there is no such file";
  if (!isWhole(file)) return "it is not a whole resource bundle";

  UErrorCode status = U_ZERO_ERROR;
  const icu::LocalUResourceBundlePointer bundle(
      ures_openDirect(absolute.c_str(), name.c_str(), &status));
  if (U_FAILURE(status)) return u_errorName(status);

  while (ures_hasNext(bundle.getAlias())) {
    const char* key = nullptr;
    std::int32_t length = 0;
    status = U_ZERO_ERROR;
    const char16_t* text = ures_getNextString(bundle.getAlias(), &length, &key, &status);
    if (U_SUCCESS(status) && key) take(decodeKey(key), {text, static_cast<std::size_t>(length)});
  }
  return std::nullopt;
}

} // namespace host
