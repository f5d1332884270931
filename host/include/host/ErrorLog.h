#pragma once

#include <functional>
#include <optional>
#include <source_location>
#include <string>
#include <string_view>

#include <host/Export.h>

/// The one place where errors of the builder and of the host arrive.
namespace host {

struct ErrorReport {
  std::string message;
  std::string source; ///< where it was refused: a source path, or empty
  unsigned line = 0;
};

using ErrorCallback = std::function<void(const ErrorReport&)>;

/// Takes one report: writes the line
///   chartxml: <message> [<source>:<line>]
/// on standard error, or hands it to the callback when one is set, and keeps it
/// for takeError. Control characters are shown as "\n", "\x01" on that line. A
/// report made while the callback runs goes to standard error.
KORVA_API void reportError(const ErrorReport& report);

/// Writes "chartxml: " and the text as one line on standard error, past callback and
/// log; control characters are shown as "\n", "\x01".
void writeErrorLine(std::string_view text);

/// A report of the host itself, from the caller's place in the code.
KORVA_API void reportError(std::string message,
                           std::source_location where = std::source_location::current());

/// Sets who takes the reports instead of standard error; an empty function
/// restores standard error. The callback may throw KorvaGoToCaller, which goes on to
/// whoever made the report; after any other exception the report goes to standard error.
/// Returns the callback that was set before.
KORVA_API ErrorCallback setErrorCallback(ErrorCallback callback);

/// The oldest report not yet taken, if any. The log keeps the latest 1000.
KORVA_API std::optional<ErrorReport> takeError();

} // namespace host
