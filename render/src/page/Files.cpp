#include "page/Files.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>

#include <fmt/format.h>
#include <host/DataSet.h>
#include <host/RegularFile.h>
#include <unistd.h>

namespace render {
namespace {

[[noreturn]] void fail(const std::filesystem::path& file, std::string_view reason) {
  throw RenderError(fmt::format("{}: {}", file.native(), reason));
}

} // namespace

void writeFile(const std::filesystem::path& file, std::string_view bytes) {
  std::filesystem::path aside = file;
  aside += fmt::format(".{}.tmp", getpid());
  std::error_code ignored;
  {
    errno = 0;
    std::ofstream stream(aside, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) {
      const int reason = errno;
      std::filesystem::remove(aside, ignored);
      fail(file, reason != 0 ? std::strerror(reason) : "cannot be written");
    }
  }
  std::error_code error;
  std::filesystem::rename(aside, file, error);
  if (!error) return;
  std::filesystem::remove(aside, ignored);
  fail(file, error.message());
}

std::string readFile(const std::filesystem::path& file) {
  try {
    host::requireRegularFile(file);
  } catch (const host::DataError& e) {
    throw RenderError(e.what());
  }
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  std::string bytes(std::istreambuf_iterator<char>(stream), {});
  if (!stream || stream.bad()) fail(file, errno != 0 ? std::strerror(errno) : "cannot be read");
  return bytes;
}

std::string_view reasonWithin(const std::filesystem::path& folder, const RenderError& error) {
  const std::string prefix = folder.native() + "/";
  std::string_view reason = error.what();
  if (reason.starts_with(prefix)) reason.remove_prefix(prefix.size());
  return reason;
}

void writeChanged(const std::filesystem::path& file, std::string_view bytes) {
  std::error_code error;
  if (file_size(file, error) == bytes.size() && !error && readFile(file) == bytes) return;
  writeFile(file, bytes);
}

} // namespace render
