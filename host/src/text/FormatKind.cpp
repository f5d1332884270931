#include "FormatKind.h"

#include <array>
#include <cstddef>
#include <initializer_list>

namespace host {
namespace {

constexpr auto kinds = [] {
  std::array<FormatKind, 87> table{};
  const auto set = [&table](FormatKind kind, std::initializer_list<std::size_t> codes) {
    for (const std::size_t code : codes)
      table[code] = kind;
  };
  set(FormatKind::text, {1});
  set(FormatKind::number, {2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, //
                           15, 16, 17, 31, 32, 33, 34, 35, 36, 37, 40});
  set(FormatKind::date, {20, 22, 23, 24, 26, 27, 28, 29, 30, 38, 39, 86});
  set(FormatKind::duration, {21, 25, 85});
  return table;
}();

} // namespace

FormatKind formatKind(int code) {
  const auto place = static_cast<std::size_t>(code);
  return place < kinds.size() ? kinds[place] : FormatKind::unknown;
}

} // namespace host
