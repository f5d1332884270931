#pragma once

#include <string>

#include <CLI/App.hpp>

namespace tools {

/// The script by which a shell completes the command, made from its verbs and options.
std::string bashCompletion(const CLI::App& app);
std::string zshCompletion(const CLI::App& app);

} // namespace tools
