#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "resolve/Chart.h"

namespace render {

/// The most rows of a data source that a picture shows one by one: more cannot be told
/// apart in it, and a page that holds them all is too slow to use.
constexpr std::size_t mostRows = 20'000;

/// What of a data source goes into the picture and its page.
struct Excerpt {
  std::string_view source;
  std::vector<const Variable*> variables{}; ///< that the chart refers to
  std::vector<std::size_t> rows{};          ///< ascending
  std::size_t drawable = 0;                 ///< rows that there are to draw

  bool isThinned() const { return rows.size() < drawable; }
};

/// One excerpt for each data source, in the order of their ids. Up to `mostRows` rows
/// are all there. Of more, those that no element draws are left out and the others are
/// taken at even distances; the rows of the lowest and the highest values, and the
/// first one of each group, are always among them. The same chart gives the same rows.
std::vector<Excerpt> excerptsOf(const Chart& chart);

} // namespace render
