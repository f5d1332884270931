#pragma once

#include <string>

#include <host/ChartSink.h>
#include <nlohmann/json.hpp>

namespace host {

/// The file of a data source, "<source>.csv"; empty for a source without columns.
/// Throws ChartException for a source whose name can't name a file.
std::string csvNameOf(const VarDataProcessor::Source& source);

/// What the chart document does not say, under the name given; `errors` tells what
/// the chart folder lacks. Throws ChartException.
nlohmann::ordered_json manifestOf(const SentChart& chart, const std::string& name,
                                  const std::vector<std::string>& errors);

} // namespace host
