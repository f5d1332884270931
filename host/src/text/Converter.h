#pragma once

#include <bitset>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <unicode/localpointer.h>
#include <unicode/ucnv.h>

namespace host {

/// One code page, both ways. All conversions are total: bytes that are not valid
/// become U+FFFD, characters that the page does not hold become "?".
class Converter {
public:
  /// The converter of a code page, or null when the name is not known. "CP949",
  /// "949" and their like are the Windows pages of that number.
  static std::unique_ptr<Converter> open(std::string_view codePage);

  bool isUtf8() const { return isUtf8_; }

  std::u16string decode(std::string_view bytes) const;
  /// As decode, with the place of its first byte in `bytes` for every unit.
  std::u16string decode(std::string_view bytes, std::vector<std::int32_t>& places) const;
  std::string encode(std::u16string_view text) const;

private:
  explicit Converter(icu::LocalUConverterPointer converter);

  icu::LocalUConverterPointer converter_;
  bool isUtf8_;
  /// Bytes that, as long as no other byte came before, are the ASCII character
  /// of the same number.
  std::bitset<128> plain_;
};

/// The converter of the process code page.
const Converter& processConverter();

/// A text in UTF-8 as bytes of the process code page.
std::string processText(std::string utf8);

} // namespace host
