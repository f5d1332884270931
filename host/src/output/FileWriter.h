#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>
#include <vector>

#include "output/Descriptor.h"

namespace host {

/// Writes a new file, whatever was there before, through a buffer; a text larger
/// than the buffer goes to the file uncopied. Every operation throws
/// ChartException when the file cannot be written. Only finish says that all of it
/// was.
class FileWriter {
public:
  explicit FileWriter(std::filesystem::path path);

  void write(std::string_view bytes);
  void write(char c);

  /// Writes what `print` puts at the address it is given, at most `most` bytes;
  /// it returns the end of them.
  template <class Print> void print(std::size_t most, Print print) {
    used_ = static_cast<std::size_t>(print(room(most)) - buffer_.data());
  }

  void finish();

private:
  char* room(std::size_t count);
  void flush();
  void put(std::string_view bytes);

  static constexpr std::size_t bufferSize = std::size_t{1} << 16;

  std::filesystem::path path_;
  Descriptor file_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
};

} // namespace host
