#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <host/Finding.h>

/// What a chart folder is made of, as the end of its manifest lists it.
namespace host {

/// What a chart folder calls its manifest: the only file that does not list itself.
constexpr const char* manifestName = "manifest.json";

/// And the list of the calls that made its nodes.
constexpr const char* callsName = "calls.json";

/// The part of a manifest that is known only when all else is written.
struct ChartFiles {
  std::vector<std::string> errors;             ///< what the folder lacks, and why
  std::map<std::string, std::string> versions; ///< of what made it: library, renderer, ...
  std::map<std::string, std::string> files;    ///< "sha256:<64 hex digits>" by name
  std::vector<Finding> findings{};             ///< of the checks that drawing ran
};

/// "sha256:<64 hex digits>" of a file's bytes. Throws ChartException.
std::string hashOf(const std::filesystem::path& file);

/// The names of the files in a chart folder and below it, in order, but the manifest's.
/// Throws ChartException.
std::vector<std::string> filesIn(const std::filesystem::path& chartFolder);

/// Reads the end of a chart folder's manifest but its findings; empty members where it has
/// none. Throws DataError.
ChartFiles readChartFiles(const std::filesystem::path& chartFolder);

/// Writes the end of a chart folder's manifest anew and leaves the rest as it is; the
/// manifest is replaced whole or not at all. Throws ChartException.
void writeChartFiles(const std::filesystem::path& chartFolder, const ChartFiles& files);

} // namespace host
