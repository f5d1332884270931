#pragma once

#include <filesystem>

namespace render {

/// Puts the script that the chart pages share into runtime/ of an output folder,
/// when it is not there with the same bytes. An installation without the script
/// leaves the pages to say that it is missing.
void placeRuntime(const std::filesystem::path& outputFolder);

} // namespace render
