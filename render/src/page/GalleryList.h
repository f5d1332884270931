#pragma once

#include <filesystem>
#include <string_view>

/// What the gallery page shows: a script beside it with a line for each chart and each
/// entry of the error list. A new chart costs a line, not a gallery.
namespace render {

constexpr std::string_view galleryListName = "gallery.js";

/// Makes the list anew from all chart folders in the order of their names, with their
/// pictures and sources as they are now. Throws RenderError.
void writeGalleryList(const std::filesystem::path& outputFolder);

/// Adds what the list lacks; makes it anew when it is damaged or names what is gone.
/// Throws RenderError.
void updateGalleryList(const std::filesystem::path& outputFolder);

} // namespace render
