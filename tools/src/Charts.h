#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tools {

/// The folder without a slash at its end, so that it has a name.
std::filesystem::path named(const std::filesystem::path& folder);

/// Whether a folder holds a chart: its document, or the manifest of one that is lost.
bool isChart(const std::filesystem::path& folder);

/// The chart folders that the arguments name: themselves, or those in them, by name.
/// Throws UsageError for one that has neither.
std::vector<std::filesystem::path> findCharts(const std::vector<std::string>& arguments);

/// "1 chart", "2 charts"
std::string counted(std::size_t count, const char* noun);

} // namespace tools
