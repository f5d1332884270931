#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tools {

/// What belongs to documents that are drawn by themselves, not in a chart folder.
struct DocumentOptions {
  std::vector<std::string> data{}; ///< CSV files, by name those of sources
  std::string output{};            ///< the output folder; empty: that of each document
};

/// The chart folders to draw, in the order of the arguments: chart folders, those in output
/// folders, and of documents new ones with the document, its data and a manifest. chart.xml
/// of a chart folder names that folder, unless data or an output folder are given. Throws
/// UsageError, and ChartError for a document that cannot be read.
std::vector<std::filesystem::path> chartsToDraw(const std::vector<std::string>& arguments,
                                                const DocumentOptions& options);

} // namespace tools
