#include "output/ChartVariables.h"

#include <algorithm>
#include <numeric>

namespace host {

ChartVariables::ChartVariables(const ZephVisualization& chart, const VarDataProcessor& data)
    : chart_(chart) {
  if (data.sources().empty()) return;
  for (const auto& source : data.sources())
    sources_.insert(source.name);
  firstSource_ = data.sources().front().name;
  byPlace_.resize(chart.getSourceVariables().size());
  std::iota(byPlace_.begin(), byPlace_.end(), 0U);
  std::ranges::sort(byPlace_, {},
                    [&](std::uint32_t index) { return std::pair(placeOf(index), index); });
}

/// The store gives a variable of a source that it does not know the first one.
ChartVariables::Place ChartVariables::placeOf(std::uint32_t index) const {
  const std::string& source = variable(index).source();
  return {sources_.contains(source) ? source : firstSource_, variable(index).sourceName()};
}

std::vector<const CTVariableType*>
ChartVariables::of(const VarDataProcessor::Source& source,
                   const VarDataProcessor::Variable& column) const {
  std::vector<const CTVariableType*> variables;
  const auto found = std::ranges::equal_range(byPlace_, Place(source.name, column.name), {},
                                              [&](std::uint32_t index) { return placeOf(index); });
  for (const std::uint32_t index : found)
    variables.push_back(&variable(index));
  return variables;
}

} // namespace host
