#pragma once

#include <filesystem>

#include <host/NodeCalls.h>

namespace host {

/// Writes the calls that made a chart's nodes, {"variable1": "7 cx_addvariable_"}; no file
/// where nobody noted them. Throws ChartException.
void writeCalls(const std::filesystem::path& chartFolder, const NodeCalls& calls);

} // namespace host
