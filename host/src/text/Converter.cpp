#include "Converter.h"

#include <algorithm>
#include <utility>

#include <host/Text.h>

namespace host {
namespace {

// ICU takes no more than this at a time.
constexpr std::size_t largestPiece = 1U << 28;

UConverter* openByName(const std::string& name) {
  UErrorCode status = U_ZERO_ERROR;
  // ICU's own reading of "CP949" and "CP950" is another maker's page, in which
  // the backslash is a won sign.
  if (name.starts_with("CP") || name.starts_with("cp")) {
    if (UConverter* windows = ucnv_open(("windows-" + name.substr(2)).c_str(), &status))
      return windows;
    status = U_ZERO_ERROR;
  }
  return ucnv_open(name.c_str(), &status);
}

bool readsAsItself(UConverter* converter, char byte) {
  char16_t units[4];
  UErrorCode status = U_ZERO_ERROR;
  const int32_t count = ucnv_toUChars(converter, units, 4, &byte, 1, &status);
  return U_SUCCESS(status) && count == 1 && units[0] == static_cast<unsigned char>(byte);
}

} // namespace

std::unique_ptr<Converter> Converter::open(std::string_view codePage) {
  if (codePage.empty()) return nullptr; // ICU would take its default page
  icu::LocalUConverterPointer converter(openByName(std::string(codePage)));
  if (converter.isNull()) return nullptr;
  return std::unique_ptr<Converter>(new Converter(std::move(converter)));
}

Converter::Converter(icu::LocalUConverterPointer converter)
    : converter_(std::move(converter)), isUtf8_(ucnv_getType(converter_.getAlias()) == UCNV_UTF8) {
  UErrorCode status = U_ZERO_ERROR;
  ucnv_setSubstString(converter_.getAlias(), u"?", 1, &status);
  for (std::size_t byte = 0; byte < plain_.size(); ++byte)
    plain_[byte] = readsAsItself(converter_.getAlias(), static_cast<char>(byte));
}

std::u16string Converter::decode(std::string_view bytes) const {
  if (isUtf8_) return utf16(bytes);

  const auto isPlain = [this](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < plain_.size() && plain_[byte];
  };
  std::u16string text(bytes.size(), u'\0');
  std::size_t used = 0;
  for (; used < bytes.size() && isPlain(bytes[used]); ++used)
    text[used] = static_cast<unsigned char>(bytes[used]);
  if (used == bytes.size()) return text;

  UConverter* converter = converter_.getAlias();
  ucnv_resetToUnicode(converter);
  const char* source = bytes.data() + used;
  const char* const end = bytes.data() + bytes.size();
  UErrorCode status;
  do {
    const std::size_t piece = std::min(static_cast<std::size_t>(end - source), largestPiece);
    const char* const pieceEnd = source + piece;
    text.resize(used + piece + 8);
    char16_t* target = text.data() + used;
    status = U_ZERO_ERROR;
    ucnv_toUnicode(converter, &target, text.data() + text.size(), &source, pieceEnd, nullptr,
                   pieceEnd == end, &status);
    used = static_cast<std::size_t>(target - text.data());
  } while (status == U_BUFFER_OVERFLOW_ERROR || (U_SUCCESS(status) && source != end));
  text.resize(used);
  return text;
}

std::u16string Converter::decode(std::string_view bytes, std::vector<std::int32_t>& places) const {
  std::u16string text(bytes.size() * 2 + 8, u'\0');
  places.resize(text.size());
  UConverter* converter = converter_.getAlias();
  ucnv_resetToUnicode(converter);
  char16_t* target = text.data();
  const char* source = bytes.data();
  UErrorCode status = U_ZERO_ERROR;
  ucnv_toUnicode(converter, &target, text.data() + text.size(), &source,
                 bytes.data() + bytes.size(), places.data(), true, &status);
  text.resize(static_cast<std::size_t>(target - text.data()));
  places.resize(text.size());
  return text;
}

std::string Converter::encode(std::u16string_view text) const {
  if (isUtf8_) return utf8(text);

  UConverter* converter = converter_.getAlias();
  ucnv_resetFromUnicode(converter);
  std::string bytes;
  std::size_t used = 0;
  const char16_t* source = text.data();
  const char16_t* const end = text.data() + text.size();
  UErrorCode status;
  do {
    const std::size_t piece = std::min(static_cast<std::size_t>(end - source), largestPiece);
    const char16_t* const pieceEnd = source + piece;
    bytes.resize(used + piece * 2 + 8);
    char* target = bytes.data() + used;
    status = U_ZERO_ERROR;
    ucnv_fromUnicode(converter, &target, bytes.data() + bytes.size(), &source, pieceEnd, nullptr,
                     pieceEnd == end, &status);
    used = static_cast<std::size_t>(target - bytes.data());
  } while (status == U_BUFFER_OVERFLOW_ERROR || (U_SUCCESS(status) && source != end));
  bytes.resize(used);
  return bytes;
}

} // namespace host
