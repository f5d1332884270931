#include "text/Show.h"

#include <host/Text.h>

namespace render {

std::string shown(std::string_view utf8) {
  constexpr std::size_t longest = 80;
  std::u16string text = host::utf16(utf8.substr(0, longest * 4));
  if (text.size() > longest) {
    text.resize(longest);
    text += u'…';
  }
  for (char16_t& unit : text)
    if (unit < u' ') unit = u' ';
  return host::utf8(text);
}

} // namespace render
