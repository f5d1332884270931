#include <host/Text.h>

#include <cstdint>
#include <cstring>

#include <unicode/utf16.h>
#include <unicode/utf8.h>

namespace host {
namespace {

constexpr std::size_t step = 8;

bool isAsciiStep(const char* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, step);
  return (word & 0x8080808080808080U) == 0;
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion" // inside ICU's macro
UChar32 nextCharacter(std::string_view bytes, std::size_t& i) {
  UChar32 character;
  U8_NEXT_OR_FFFD(bytes, i, bytes.size(), character);
  return character;
}
#pragma GCC diagnostic pop

} // namespace

void appendUtf16(std::u16string& out, std::string_view utf8) {
  const std::size_t start = out.size();
  out.resize(start + utf8.size()); // a text never takes more units than its UTF-8 has bytes
  const char* bytes = utf8.data();
  const std::size_t size = utf8.size();
  char16_t* to = out.data() + start;
  std::size_t i = 0;
  while (i < size) {
    for (; i + step <= size && isAsciiStep(bytes + i); i += step, to += step)
      for (std::size_t k = 0; k < step; ++k)
        to[k] = static_cast<unsigned char>(bytes[i + k]);
    if (i == size) break;
    const UChar32 character = nextCharacter(utf8, i);
    if (U_IS_BMP(character)) {
      *to++ = static_cast<char16_t>(character);
    } else {
      *to++ = U16_LEAD(character);
      *to++ = U16_TRAIL(character);
    }
  }
  out.resize(static_cast<std::size_t>(to - out.data()));
}

std::u16string utf16(std::string_view utf8) {
  std::u16string text;
  appendUtf16(text, utf8);
  return text;
}

std::string utf8(std::u16string_view utf16) {
  constexpr std::size_t mostBytesAUnit = 3;
  const std::size_t size = utf16.size();
  std::string text(size, '\0');
  std::size_t i = 0;
  for (; i < size && utf16[i] < 0x80; ++i)
    text[i] = static_cast<char>(utf16[i]);
  if (i == size) return text;

  std::size_t end = i;
  text.resize(i + (size - i) * mostBytesAUnit);
  while (i < size) {
    UChar32 character;
    U16_NEXT_OR_FFFD(utf16.data(), i, size, character);
    U8_APPEND_UNSAFE(text.data(), end, character);
  }
  text.resize(end);
  return text;
}

} // namespace host
