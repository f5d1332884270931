#pragma once

#include <filesystem>
#include <vector>

#include "data/Field.h"

namespace host {

/// Describes the fields of a CSV file that comes without a description: a column
/// is a number when every cell that is not missing is one, a date when every one is
/// a date (yyyy-mm-dd), else a text. Empty cells are missing, in columns of numbers
/// and dates cells that read NA as well. The label is the column's name; the format
/// shows the decimals seen, or the longest text. Throws DataError.
std::vector<Field> inferFields(const std::filesystem::path& csv);

} // namespace host
