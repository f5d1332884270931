#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace host {
class Converter;
}

/// Converts between a code page, by its name ("UTF-8", "CP932", ...), and
/// UTF-16. "CP949" and its like are the Windows pages of that number. A name that
/// is not known is reported and UTF-8 used.
class ChartTranscoder {
public:
  explicit ChartTranscoder(std::string_view codePage);
  ~ChartTranscoder();
  ChartTranscoder(const ChartTranscoder&) = delete;
  ChartTranscoder& operator=(const ChartTranscoder&) = delete;

  /// Bytes of the code page as UTF-16; invalid bytes become U+FFFD.
  std::u16string transcode(std::string_view bytes) const;
  /// UTF-16 as bytes of the code page; what it does not hold becomes "?".
  std::string transcodeTo(std::u16string_view text) const;

private:
  std::unique_ptr<host::Converter> converter_;
};
