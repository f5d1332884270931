#include "output/FileWriter.h"

#include <algorithm>

#include <fcntl.h>

#include "output/Failure.h"

namespace host {

FileWriter::FileWriter(std::filesystem::path path)
    : path_(std::move(path)),
      file_(open(path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666)) {
  if (!file_) fail("write", path_, lastError());
  buffer_.resize(bufferSize);
}

void FileWriter::write(std::string_view bytes) {
  if (bytes.size() > bufferSize - used_) {
    flush();
    if (bytes.size() >= bufferSize) return put(bytes);
  }
  std::ranges::copy(bytes, buffer_.data() + used_);
  used_ += bytes.size();
}

void FileWriter::write(char c) {
  *room(1) = c;
  ++used_;
}

void FileWriter::finish() {
  flush();
  if (!file_.close()) fail("write", path_, lastError());
}

char* FileWriter::room(std::size_t count) {
  if (count > bufferSize - used_) flush();
  return buffer_.data() + used_;
}

void FileWriter::flush() { put({buffer_.data(), std::exchange(used_, 0)}); }

void FileWriter::put(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(file_.get(), bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) fail("write", path_, lastError());
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

} // namespace host
