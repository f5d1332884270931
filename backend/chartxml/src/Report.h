#pragma once

#include <source_location>
#include <string>

#include <host/ChartError.h>

/// Hands a refusal to the error handler, with the place of the call that was
/// refused. Nothing is thrown: the caller goes on to return its failure value.
inline void reportRefusal(std::string message, std::source_location where) {
  ChartErrorHandler::error(ChartException(std::move(message), where.file_name(), where.line()));
}
