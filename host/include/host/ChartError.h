#pragma once

#include <string>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/util/XMLException.hpp>

#include <host/Export.h>

/// What was refused and why, with the place that refused it. It is handed to
/// ChartErrorHandler::error, not thrown, except by the output side.
class KORVA_API ChartException {
public:
  ChartException(std::string message, std::string source, unsigned line);

  const std::string& what() const { return message_; }
  const std::string& source() const { return source_; }
  unsigned line() const { return line_; }

private:
  std::string message_;
  std::string source_;
  unsigned line_;
};

/// Thrown by an error handler that hands control back to the calling procedure;
/// whoever catches exceptions lets it pass.
class KORVA_API KorvaGoToCaller{};

/// Reports go to the host's error log (host/ErrorLog.h). The operations are
/// static because the first report can come before a handler exists and the
/// last one after it is destroyed. What the program's error callback throws, such as
/// KorvaGoToCaller, passes through them.
class KORVA_API ChartErrorHandler {
public:
  virtual ~ChartErrorHandler() = default;

  static void error(const ChartException& exception);
  static void error(const xercesc::DOMException& exception);
  static void error(const xercesc::XMLException& exception);
};
