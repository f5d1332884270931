#pragma once

#include <cerrno>
#include <filesystem>
#include <source_location>
#include <string_view>
#include <system_error>

namespace host {

/// What the last failed system call gave as its reason.
inline std::error_code lastError() { return {errno, std::generic_category()}; }

/// Throws ChartException "can't <action> <path>: <reason>".
[[noreturn]] void fail(std::string_view action, const std::filesystem::path& path,
                       std::error_code reason,
                       std::source_location where = std::source_location::current());

} // namespace host
