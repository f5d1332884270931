#pragma once

#include <filesystem>
#include <string>

#include <host/ChartSink.h>

namespace host {

/// Writes datapackage.json, which describes the CSV files of a chart folder in the
/// Data Package and Table Schema standards: names, labels, types, display formats,
/// value labels and what is missing. A chart without columns has none. Throws
/// ChartException.
void writeDataPackage(const std::filesystem::path& chartFolder, const SentChart& chart,
                      const std::string& name);

} // namespace host
