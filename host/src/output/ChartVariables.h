#pragma once

#include <map>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <host/VarDataProcessor.h>
#include <host/XDocument.h>

namespace host {

/// The document's variables by the column that they read.
class ChartVariables {
public:
  ChartVariables(const ZephVisualization& chart, const VarDataProcessor& data);

  /// Those that read the column, in the order of the document.
  std::span<const CTVariableType* const> of(const VarDataProcessor::Source& source,
                                            const VarDataProcessor::Variable& column) const;

private:
  using Variables = std::vector<const CTVariableType*>; ///< by the name of their column
  using ById = std::unordered_map<std::string_view, const CTVariableType*>;

  Variables* sourceOf(const CTVariableType& variable, const ZephVisualization& chart, ById& byId);

  std::map<std::string_view, Variables> ofSource_;
};

} // namespace host
