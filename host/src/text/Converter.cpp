#include "Converter.h"

#include <algorithm>
#include <utility>

#include <host/Text.h>

namespace host {
namespace {

// ICU takes no more than this at a time.
constexpr std::size_t largestPiece = 1U << 28;

// The number in "1252", "CP1252", "cp-1252"; nothing in a name that is no number.
std::string_view pageNumber(std::string_view name) {
  if (name.size() > 2 && (name[0] == 'C' || name[0] == 'c') && (name[1] == 'P' || name[1] == 'p'))
    name.remove_prefix(name[2] == '-' || name[2] == '_' ? 3 : 2);
  return name.find_first_not_of("0123456789") == std::string_view::npos ? name : std::string_view();
}

UConverter* openIcu(const std::string& name) {
  UErrorCode status = U_ZERO_ERROR;
  return ucnv_open(name.c_str(), &status);
}

UConverter* openByName(std::string_view name) {
  const std::string number(pageNumber(name));
  if (number.empty()) return openIcu(std::string(name));
  // The one Windows number of a common page that ICU does not have.
  if (number == "28591") return openIcu("ISO-8859-1");
  // ICU's own reading of "CP949" and "CP950" is another maker's page, in which
  // the backslash is a won sign.
  UConverter* const windows = openIcu("windows-" + number);
  return windows ? windows : openIcu("cp" + number);
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
  icu::LocalUConverterPointer converter(openByName(codePage));
  if (converter.isNull()) return nullptr;
  // X11's compound text takes no substitute: closing ICU's converter crashes after one.
  if (ucnv_getType(converter.getAlias()) == UCNV_COMPOUND_TEXT) return nullptr;
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
