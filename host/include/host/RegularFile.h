#pragma once

#include <filesystem>

namespace host {

/// Refuses what is no regular file: who reads a pipe may wait forever. Throws DataError,
/// "<file>: <reason>".
void requireRegularFile(const std::filesystem::path& path);

} // namespace host
