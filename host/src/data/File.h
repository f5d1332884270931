#pragma once

#include <cstdio>
#include <filesystem>
#include <functional>
#include <string_view>

namespace host {

/// Reads a regular file from begin to end, in pieces of at most 64 KiB; a
/// byte-order mark is left out. Throws DataError, "<file>: <reason>".
void readFile(const std::filesystem::path& path,
              const std::function<void(std::string_view piece)>& take);

} // namespace host
