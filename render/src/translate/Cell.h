#pragma once

#include <cstddef>

#include "resolve/Variable.h"
#include "text/Json.h"

namespace render {

/// The value of a variable in a row as Vega takes it: a number, the key of a category, or
/// null for a missing one.
Json cellOf(const Variable& variable, std::size_t row);

} // namespace render
