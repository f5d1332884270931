#include "data/File.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include <fmt/format.h>
#include <host/DataSet.h>
#include <host/RegularFile.h>

namespace host {
namespace {

[[noreturn]] void fail(const std::filesystem::path& path, std::string_view reason) {
  throw DataError(fmt::format("{}: {}", path.native(), reason));
}

std::string systemReason() { return std::generic_category().message(errno); }

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

} // namespace

void requireRegularFile(const std::filesystem::path& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  if (!std::filesystem::exists(status)) fail(path, error.message());
  if (!std::filesystem::is_regular_file(status)) fail(path, "not a regular file");
}

void readFile(const std::filesystem::path& path,
              const std::function<void(std::string_view piece)>& take) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  requireRegularFile(path);
  const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rb"));
  if (!file) fail(path, systemReason());

  std::array<char, 64 * 1024> buffer;
  bool atBegin = true;
  while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file.get())) {
    std::string_view piece(buffer.data(), count);
    if (atBegin && piece.starts_with(byteOrderMark)) piece.remove_prefix(byteOrderMark.size());
    atBegin = false;
    take(piece);
  }
  if (std::ferror(file.get()) != 0) fail(path, systemReason());
}

} // namespace host
