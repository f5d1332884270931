#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace render {

/// A font of pictures and the files of its faces, which may be missing.
struct FontFiles {
  std::string family;
  std::filesystem::path regular, bold;
};

/// The fonts of pictures, as font/files.json lists them, the one that most letters come
/// from first. Their files lie in the folder that CHARTXML_FONTS names, when it is set.
std::vector<FontFiles> fontFiles();

} // namespace render
