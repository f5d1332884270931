#pragma once

#include <string>
#include <string_view>

/// Conversions between the encodings of this system, all total: what is not
/// valid becomes U+FFFD, nothing is refused and nothing is lost in silence.
namespace host {

std::u16string utf16(std::string_view utf8);
std::string utf8(std::u16string_view utf16);

/// Appends to `out`; ASCII is widened without a converter.
void appendUtf16(std::u16string& out, std::string_view utf8);

} // namespace host
