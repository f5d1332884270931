#include "data/Refusal.h"

#include <fmt/format.h>

namespace host {

std::string shown(std::string_view utf8) {
  constexpr std::size_t longest = 40;
  if (utf8.size() <= longest) return fmt::format("\"{}\"", utf8);
  std::size_t end = longest;
  while (end > 0 && (static_cast<unsigned char>(utf8[end]) & 0xC0U) == 0x80U)
    --end;
  return fmt::format("\"{}...\"", utf8.substr(0, end));
}

} // namespace host
