#pragma once

#include <filesystem>
#include <string>

#include <nlohmann/json.hpp>

namespace host {

/// Parses a JSON file; `keep` as nlohmann::json::parse takes it. Throws DataError,
/// "<file>:<line>:<column>: <reason>".
nlohmann::json readJson(const std::filesystem::path& file,
                        const nlohmann::json::parser_callback_t& keep = nullptr);
/// The same with the members of objects in the order of the file.
nlohmann::ordered_json readOrderedJson(const std::filesystem::path& file);

/// What an error of the parser says, without its prefix.
std::string reasonOf(const nlohmann::json::exception& error);

} // namespace host
