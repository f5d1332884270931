#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

/// What a script of this folder prints as JSON, run by Node.js.
nlohmann::json scriptOutput(const std::string& script, const std::vector<std::string>& arguments);
