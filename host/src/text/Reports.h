#pragma once

#include <source_location>
#include <string>

namespace host {

/// Reports a message the first time that it comes up in this process.
void reportOnce(const std::string& message,
                std::source_location where = std::source_location::current());

} // namespace host
