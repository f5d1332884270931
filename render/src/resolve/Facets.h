#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "read/Node.h"
#include "resolve/Notes.h"
#include "resolve/Variable.h"

namespace render {

struct Chart;

/// One of the categories that a panel is for.
struct FacetValue {
  const Node* node; ///< the facetVariable
  const Variable* variable;
  std::size_t category;

  bool operator==(const FacetValue& other) const {
    return variable == other.variable && category == other.category;
  }
};

/// A column or row of panels: the categories of its rows, outermost first.
using FacetCell = std::vector<FacetValue>;

/// How the rows of a plot are split into panels. Without facets there is one column and
/// one row, of all rows.
struct Facets {
  std::vector<FacetCell> columns{{}};
  std::vector<FacetCell> rows{{}};
  bool areAlongAxis = false; ///< panels share one frame and are labelled along its axis
  bool isMatrix = false;     ///< each column and row is for a variable, with all rows of data

  bool isSplit() const { return columns.size() > 1 || rows.size() > 1 || !areUnlabelled(); }
  bool areUnlabelled() const { return columns.front().empty() && rows.front().empty(); }
};

/// Reads the facets of the chart's plot.
Facets readFacets(const Chart& chart, Notes& notes);

/// Whether a row of a source belongs into a column or row of panels. Rows of another
/// source than the facets' belong everywhere.
bool holds(const FacetCell& cell, std::string_view source, std::size_t row);

} // namespace render
