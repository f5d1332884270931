#pragma once

#include <cstdint>

namespace host {

/// What the values of a display format are.
enum class FormatKind : std::uint8_t { unknown, text, number, date, duration };

/// The kind of a display-format code; any number may be asked for.
FormatKind formatKind(int code);

} // namespace host
