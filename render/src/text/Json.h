#pragma once

#include <nlohmann/json.hpp>

namespace render {

/// Keeps the order in which members are written.
using Json = nlohmann::ordered_json;

/// A number of a specification: whole numbers without a decimal point.
Json jsonNumber(double value);

} // namespace render
