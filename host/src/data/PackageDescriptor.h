#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "data/Field.h"

namespace host {

/// The first resource of a data package.
struct PackagedTable {
  std::filesystem::path csv;
  std::optional<std::vector<Field>> fields = {}; ///< none when the package has no schema
};

/// Reads a datapackage.json in the Data Package and Table Schema standards. What
/// changes a table's meaning and is not supported is refused. Throws DataError:
///   <file>:<line>:<column>: <reason>    for what is no JSON
///   <file>: field "<name>": <reason>    for what describes no table
PackagedTable readDescriptor(const std::filesystem::path& file);

} // namespace host
