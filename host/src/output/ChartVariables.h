#pragma once

#include <cstdint>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <host/VarDataProcessor.h>
#include <host/XDocument.h>

namespace host {

/// The document's variables by the column that they read. Borrows both.
class ChartVariables {
public:
  ChartVariables(const ZephVisualization& chart, const VarDataProcessor& data);

  /// Those that read the column, in the order of the document.
  std::vector<const CTVariableType*> of(const VarDataProcessor::Source& source,
                                        const VarDataProcessor::Variable& column) const;

private:
  using Place = std::pair<std::string_view, std::string_view>; ///< source and column
  const CTVariableType& variable(std::uint32_t index) const {
    return chart_.getSourceVariables()[index];
  }
  Place placeOf(std::uint32_t index) const;
  std::string_view sourceOf(std::uint32_t index) const;

  const ZephVisualization& chart_;
  std::set<std::string_view> sources_;
  std::string_view firstSource_;
  std::unordered_map<std::string_view, std::uint32_t> byId_; ///< empty when none is computed
  std::vector<std::uint32_t> byPlace_;                       ///< indices of variables
};

} // namespace host
