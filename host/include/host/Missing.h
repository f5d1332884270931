#pragma once

#include <limits>

namespace host {

/// The system-missing value: the most negative finite double.
constexpr double systemMissing = std::numeric_limits<double>::lowest();

} // namespace host
