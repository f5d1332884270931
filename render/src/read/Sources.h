#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "read/Node.h"

namespace render {

/// Whether the variables of a document have columns in the source.
bool isRead(std::string_view source, const Node& graph);

/// What the CSV file of a document's source is called. Throws RenderError for a source whose
/// id is no name of a file.
std::string csvNameIn(const std::filesystem::path& document, std::string_view source);

} // namespace render
