#pragma once

#include <filesystem>

#include <host/VarDataProcessor.h>

namespace host {

/// Writes the columns of a data source as CSV: a header of their names, then one
/// line a row. Numbers have the fewest digits that read back to the same number
/// (NaN, INF and -INF as in Table Schema); a system-missing or unset cell is empty.
/// Throws ChartException.
void writeCsv(const std::filesystem::path& path, const VarDataProcessor::Source& source);

} // namespace host
