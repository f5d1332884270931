#pragma once

#include <optional>
#include <vector>

#include "resolve/Chart.h"

namespace render {

/// What the document says of the values along a dimension.
struct Domain {
  std::optional<double> min{}; ///< of its intervals, where they are numbers
  std::optional<double> max{};
  bool isExactBelow = false; ///< ends at the values themselves
  bool isExactAbove = false;
  bool isNiceBelow = false; ///< ends at round numbers
  bool isNiceAbove = false;
  std::vector<const Variable*> references{}; ///< whose values belong to it too
  const Node* sort = nullptr;

  bool hasRange() const { return !min || !max || *min < *max; }
};

/// The domain that a dimension names, or that of the first of its variables that names
/// one; empty without one.
Domain domainOf(const Dimension& dimension, const Chart& chart, Notes& notes);

/// Puts categories into the order of a "sort" node: of the values, of the data, or of the
/// sums of another variable.
void sortCategories(std::vector<Category>& categories, const Node& sort, const Dimension& dimension,
                    const Chart& chart, Notes& notes);

} // namespace render
