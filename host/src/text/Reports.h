#pragma once

#include <source_location>
#include <string>
#include <string_view>

namespace host {

/// Reports a message the first time that it comes up in this process.
void reportOnce(const std::string& message,
                std::source_location where = std::source_location::current());

/// Writes "chartxml: " and the text as one line on standard error; control
/// characters are shown as "\n", "\x01".
void writeErrorLine(std::string_view text);

} // namespace host
