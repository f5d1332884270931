// What a language with error arguments of its own needs: the reports of one call.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "EntryCall.h"
#include <chartxml/EntryPoints.h>
#include <host/ErrorLog.h>

using namespace entry;

namespace {

/// The reports that are held back while a call runs.
struct HeldReports {
  std::vector<host::ErrorReport> reports;
  host::ErrorCallback before; ///< the program's own; it takes reports as they come
  bool holding = false;
};

// Never destroyed: reports come also from destructors that run at exit.
HeldReports& held() {
  static HeldReports& reports = *new HeldReports;
  return reports;
}

void hold(const host::ErrorReport& report) {
  held().reports.push_back(report);
  if (held().before) held().before(report);
}

std::string joined(const std::vector<host::ErrorReport>& reports) {
  std::string messages;
  for (const host::ErrorReport& report : reports) {
    if (!messages.empty()) messages += "; ";
    messages += report.message;
  }
  return messages.empty() ? "refused" : messages;
}

// As Fortran assigns: cut, or filled up with blanks.
void assign(const std::string& text, char* target, const int64_t* capacity) {
  if (!target || !capacity || *capacity <= 0) return;
  const auto room = static_cast<std::size_t>(*capacity);
  const std::size_t copied = text.copy(target, room);
  std::fill_n(target + copied, room - copied, ' ');
}

// Straight to standard error: the log has them already.
void tell(const std::string& call, const std::vector<host::ErrorReport>& reports) {
  for (const auto& [message, source, line] : reports) {
    const std::string place = source.empty() ? "" : fmt::format(" [{}:{}]", source, line);
    host::writeErrorLine(fmt::format("{}: {}{}", call, message, place));
  }
}

} // namespace

int64_t chartxml_begincall_() {
  return caught(__func__, [] {
    held().reports.clear();
    if (held().holding) return 0; // control went past the end of the call before
    held().before = host::setErrorCallback(hold);
    held().holding = true;
    return 0;
  });
}

int64_t chartxml_refuse_(const char* text, const int64_t* textLength) {
  return caught(__func__, [&] {
    host::reportError(host::ErrorReport{Text{text, textLength}.read(), "", 0});
    return -1;
  });
}

int64_t chartxml_endcall_(const char* callName, const int64_t* callNameLength,
                          const int64_t* failed, const int64_t* mayBeSilent, const int64_t* wanted,
                          char* buffer, const int64_t* bufferCapacity) {
  return caught(__func__, [&] {
    if (!held().holding) return 0;
    const bool programTakesThem = static_cast<bool>(held().before);
    host::setErrorCallback(std::exchange(held().before, nullptr));
    held().holding = false;
    const bool refused = logical(failed) && !(logical(mayBeSilent) && held().reports.empty());
    if (!refused && held().reports.empty()) return 0;

    const auto reports = std::exchange(held().reports, {});
    if (refused) assign(joined(reports), buffer, bufferCapacity);
    if (logical(wanted)) return refused ? 1 : 0;
    const std::string name = Text{callName, callNameLength}.read();
    if (!programTakesThem) tell(name, reports);
    if (refused && reports.empty()) host::reportError({name + ": refused", "", 0});
    return refused ? 1 : 0;
  });
}
