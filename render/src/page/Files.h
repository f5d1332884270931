#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include <render/Pages.h>

namespace render {

/// Writes a file so that it appears whole or not at all. Throws RenderError.
void writeFile(const std::filesystem::path& file, std::string_view bytes);

/// The same, unless the file holds these bytes already.
void writeChanged(const std::filesystem::path& file, std::string_view bytes);

/// The bytes of a file. Throws RenderError.
std::string readFile(const std::filesystem::path& file);

/// What an error says, its files named as those of the folder.
std::string_view reasonWithin(const std::filesystem::path& folder, const RenderError& error);

} // namespace render
