#pragma once

#include <filesystem>

namespace render {

/// Puts the scripts that the pages share into runtime/ of an output folder, those that
/// are not there with the same bytes. An installation without a script leaves the pages
/// to say that it is missing.
void placeRuntime(const std::filesystem::path& outputFolder);

} // namespace render
