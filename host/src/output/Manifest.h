#pragma once

#include <filesystem>
#include <string>

#include <host/ChartSink.h>

namespace host {

/// The file of a data source, "<source>.csv"; empty for a source without columns.
/// Throws ChartException for a source whose name can't name a file.
std::string csvNameOf(const VarDataProcessor::Source& source);

/// Writes manifest.json, what the chart document does not say, under the name given;
/// its end (ChartFiles) is still to be written. Throws ChartException.
void writeManifest(const std::filesystem::path& chartFolder, const SentChart& chart,
                   const std::string& name);

} // namespace host
