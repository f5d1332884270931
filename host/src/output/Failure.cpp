#include "output/Failure.h"

#include <fmt/format.h>
#include <host/ChartError.h>

void host::fail(std::string_view action, const std::filesystem::path& path, std::error_code reason,
                std::source_location where) {
  throw ChartException(fmt::format("can't {} {}: {}", action, path.native(), reason.message()),
                       where.file_name(), where.line());
}
