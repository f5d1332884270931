#include <host/ErrorLog.h>

#include <cstdio>
#include <deque>
#include <exception>
#include <set>
#include <utility>

#include <fmt/format.h>
#include <host/ChartError.h>

#include "Reports.h"

namespace host {
namespace {

constexpr std::size_t mostKept = 1000;

struct Log {
  std::deque<ErrorReport> notTaken;
  ErrorCallback callback;
  bool inCallback = false;
  std::set<std::string> reportedOnce;
};

// Never destroyed: reports come also from destructors that run at exit.
Log& log() {
  static Log& theLog = *new Log;
  return theLog;
}

void keep(const ErrorReport& report) {
  auto& notTaken = log().notTaken;
  if (notTaken.size() == mostKept) notTaken.pop_front();
  notTaken.push_back(report);
}

void writeReport(const ErrorReport& report) {
  if (report.source.empty()) return writeErrorLine(report.message);
  writeErrorLine(fmt::format("{} [{}:{}]", report.message, report.source, report.line));
}

// Whoever reports is in the midst of a refusal, which a callback that fails must not
// turn into something else.
void writeUntaken(const ErrorReport& report, std::string_view reason) {
  writeReport(report);
  writeErrorLine(fmt::format("the error callback failed - {}", reason));
}

void callBack(const ErrorReport& report) {
  struct Guard {
    Guard() { log().inCallback = true; }
    ~Guard() { log().inCallback = false; }
  } guard;
  const ErrorCallback callback = log().callback; // it may set another one while it runs
  try {
    callback(report);
  } catch (const KorvaGoToCaller&) {
    throw;
  } catch (const std::exception& exception) {
    writeUntaken(report, exception.what());
  } catch (...) {
    writeUntaken(report, "unknown exception");
  }
}

void appendVisible(std::string& line, char c) {
  switch (c) {
  case '\n':
    line += "\\n";
    return;
  case '\r':
    line += "\\r";
    return;
  case '\t':
    line += "\\t";
    return;
  default:
    break;
  }
  const auto byte = static_cast<unsigned char>(c);
  if (byte >= 0x20 && byte != 0x7f)
    line += c;
  else
    fmt::format_to(std::back_inserter(line), "\\x{:02x}", byte);
}

} // namespace

void reportError(const ErrorReport& report) {
  keep(report);
  // A report from within the callback must not call it again.
  if (log().callback && !log().inCallback)
    callBack(report);
  else
    writeReport(report);
}

void reportError(std::string message, std::source_location where) {
  reportError(ErrorReport{std::move(message), where.file_name(), where.line()});
}

ErrorCallback setErrorCallback(ErrorCallback callback) {
  return std::exchange(log().callback, std::move(callback));
}

std::optional<ErrorReport> takeError() {
  auto& notTaken = log().notTaken;
  if (notTaken.empty()) return std::nullopt;
  ErrorReport oldest = std::move(notTaken.front());
  notTaken.pop_front();
  return oldest;
}

void reportOnce(const std::string& message, std::source_location where) {
  if (log().reportedOnce.insert(message).second) reportError(message, where);
}

void writeErrorLine(std::string_view text) {
  std::string line = "chartxml: ";
  line.reserve(line.size() + text.size() + 1);
  for (const char c : text)
    appendVisible(line, c);
  line += '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
}

} // namespace host
