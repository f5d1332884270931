#include "text/Json.h"

#include <cmath>
#include <cstdint>

namespace render {

Json jsonNumber(double value) {
  constexpr double largestExact = 9007199254740992.0;
  if (std::trunc(value) == value && std::abs(value) <= largestExact)
    return static_cast<std::int64_t>(value);
  return value;
}

} // namespace render
