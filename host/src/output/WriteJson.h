#pragma once

#include <filesystem>

#include <nlohmann/json.hpp>

namespace host {

/// Writes a JSON file, indented; bytes that are not UTF-8 become U+FFFD, a number
/// that JSON does not know becomes null. Throws ChartException.
void writeJson(const std::filesystem::path& path, const nlohmann::ordered_json& json);

} // namespace host
