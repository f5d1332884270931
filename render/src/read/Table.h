#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "read/Column.h"

namespace render {

/// The rows of one data source, column by column; a missing value is empty.
struct Table {
  std::vector<std::string> names;
  std::vector<Column> columns;
  std::size_t rowCount = 0;

  /// Reads a CSV file. Throws RenderError with file, line and field.
  static Table read(const std::filesystem::path& file);

  /// The column of that name, or null.
  const Column* find(std::string_view name) const;
};

} // namespace render
