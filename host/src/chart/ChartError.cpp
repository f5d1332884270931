#include <host/ChartError.h>

#include <utility>

#include <fmt/format.h>

#include <host/ErrorLog.h>
#include <host/Text.h>

namespace {

std::string textOf(const XMLCh* text) { return text ? host::utf8(text) : std::string(); }

} // namespace

ChartException::ChartException(std::string message, std::string source, unsigned line)
    : message_(std::move(message)), source_(std::move(source)), line_(line) {}

void ChartErrorHandler::error(const ChartException& exception) {
  host::reportError(host::ErrorReport{exception.what(), exception.source(), exception.line()});
}

void ChartErrorHandler::error(const xercesc::DOMException& exception) {
  host::reportError(host::ErrorReport{
      fmt::format("DOM exception {}: {}", exception.code, textOf(exception.getMessage())), "", 0});
}

void ChartErrorHandler::error(const xercesc::XMLException& exception) {
  host::reportError(host::ErrorReport{
      fmt::format("{}: {}", textOf(exception.getType()), textOf(exception.getMessage())),
      exception.getSrcFile() ? exception.getSrcFile() : "",
      static_cast<unsigned>(exception.getSrcLine())});
}
