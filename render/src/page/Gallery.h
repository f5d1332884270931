#pragma once

#include <filesystem>
#include <string>

namespace render {

/// The gallery page of an output folder: a card for each chart folder in the
/// order of their names, then the output's error list.
std::string galleryPage(const std::filesystem::path& outputFolder);

} // namespace render
