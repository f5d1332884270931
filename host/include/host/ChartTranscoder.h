#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace host {
class Converter;
}

/// Converts between a code page and UTF-16. The page is named as ICU names it
/// ("UTF-8", "ISO-8859-1", "Shift_JIS") or by its Windows number ("CP932", "932",
/// "65001"). A name that is not known is reported and UTF-8 used.
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
