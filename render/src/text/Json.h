#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace render {

/// Keeps the order in which members are written.
using Json = nlohmann::ordered_json;

/// A number of a Vega chart: whole numbers without a decimal point.
Json jsonNumber(double value);

/// The text of a Vega chart for files that people compare: what holds nothing but
/// plain values, such as a row of data, takes one line.
std::string laidOut(const Json& json);

} // namespace render
