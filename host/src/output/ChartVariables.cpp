#include "output/ChartVariables.h"

#include <algorithm>

namespace host {

ChartVariables::ChartVariables(const ZephVisualization& chart, const VarDataProcessor& data) {
  if (data.sources().empty()) return;
  for (const auto& source : data.sources())
    ofSource_[source.name];
  Variables& first = ofSource_.at(data.sources().front().name);
  for (const CTVariableType& variable : chart.getSourceVariables()) {
    // The store gives a variable of a source that it does not know the first one.
    const auto source = ofSource_.find(variable.source());
    (source == ofSource_.end() ? first : source->second).push_back(&variable);
  }
  for (auto& [name, variables] : ofSource_)
    std::ranges::stable_sort(variables, {}, &CTVariableType::sourceName);
}

std::span<const CTVariableType* const>
ChartVariables::of(const VarDataProcessor::Source& source,
                   const VarDataProcessor::Variable& column) const {
  const auto found = std::ranges::equal_range(
      ofSource_.at(source.name), std::string_view(column.name), {}, &CTVariableType::sourceName);
  return {found.begin(), found.end()};
}

} // namespace host
