#pragma once

#include <string>
#include <vector>

#include <host/ErrorLog.h>

/// Takes the reports made while it lives.
class ErrorCapture {
public:
  ErrorCapture() {
    host::setErrorCallback(
        [this](const host::ErrorReport& report) { messages_.push_back(report.message); });
  }
  ~ErrorCapture() {
    host::setErrorCallback({});
    while (host::takeError()) {
    }
  }
  ErrorCapture(const ErrorCapture&) = delete;
  ErrorCapture& operator=(const ErrorCapture&) = delete;

  const std::vector<std::string>& messages() const { return messages_; }

private:
  std::vector<std::string> messages_;
};
