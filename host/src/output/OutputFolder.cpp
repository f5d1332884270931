#include "output/OutputFolder.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <fmt/format.h>

#include "output/Failure.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view draftPrefix = ".tmp-";

template <class Take> void forEachName(const fs::path& folder, Take take) {
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error))
    take(entry->path().filename().native());
  if (error) fail("read", folder, error);
}

void makeFolder(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) fail("make the folder", folder, error);
}

/// A draft's process holds a lock on it: that tells a draft in work from a
/// leftover whichever machine or container the process runs in, which its number
/// does not.
Descriptor signOf(const fs::path& draft) {
  return Descriptor(open(draft.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

/// A leftover that can't be removed harms nobody.
void removeIfLeftOver(const fs::path& draft) {
  const Descriptor sign = signOf(draft);
  if (!sign || flock(sign.get(), LOCK_EX | LOCK_NB) != 0) return;
  std::error_code ignored;
  fs::remove_all(draft, ignored);
}

void removeLeftovers(const fs::path& outputFolder) {
  std::vector<fs::path> drafts;
  forEachName(outputFolder, [&](const std::string& name) {
    if (name.starts_with(draftPrefix)) drafts.push_back(outputFolder / name);
  });
  std::ranges::for_each(drafts, removeIfLeftOver);
}

fs::path makeDraftFolder(const fs::path& outputFolder) {
  static unsigned count = 0;
  for (;;) {
    fs::path path = outputFolder / fmt::format("{}{}-{}", draftPrefix, getpid(), ++count);
    if (mkdir(path.c_str(), 0777) == 0) return path;
    if (errno != EEXIST) fail("make the folder", path, lastError());
  }
}

/// The number that a chart folder's name begins with, else 0.
std::uint64_t numberOf(std::string_view name) {
  constexpr std::size_t mostDigits = 15;
  std::uint64_t number = 0;
  const char* const end = std::from_chars(name.data(), name.data() + name.size(), number).ptr;
  const auto digits = static_cast<std::size_t>(end - name.data());
  return digits <= mostDigits && name.substr(digits).starts_with('-') ? number : 0;
}

std::uint64_t nextNumber(const fs::path& outputFolder) {
  std::uint64_t highest = 0;
  forEachName(outputFolder,
              [&](std::string_view name) { highest = std::max(highest, numberOf(name)); });
  return highest + 1;
}

} // namespace

OutputTurn::OutputTurn(const fs::path& outputFolder) {
  const fs::path path = outputFolder / ".lock";
  lock_ = Descriptor(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
  if (!lock_) fail("open", path, lastError());
  while (flock(lock_.get(), LOCK_EX) != 0)
    if (errno != EINTR) fail("lock", path, lastError());
}

Draft::Draft(fs::path outputFolder) : outputFolder_(std::move(outputFolder)) {
  makeFolder(outputFolder_);
  // Within a turn nobody takes the new folder for a leftover before it has its sign.
  const OutputTurn turn(outputFolder_);
  removeLeftovers(outputFolder_);
  path_ = makeDraftFolder(outputFolder_);
  sign_ = signOf(path_);
  if (sign_) flock(sign_.get(), LOCK_SH);
}

Draft::~Draft() {
  std::error_code ignored;
  if (!path_.empty()) fs::remove_all(path_, ignored);
}

std::string Draft::publish(std::string_view name, const OutputTurn& /*turn*/) {
  std::string folder = fmt::format("{:04}-{}", nextNumber(outputFolder_), folderNameOf(name));
  std::error_code error;
  fs::rename(path_, outputFolder_ / folder, error);
  if (error) fail("publish", outputFolder_ / folder, error);
  path_.clear();
  return folder;
}

std::string folderNameOf(std::string_view chartName) {
  constexpr std::size_t longest = 60;
  std::string name;
  for (const char c : chartName) {
    const bool isUpper = c >= 'A' && c <= 'Z';
    const bool isPlain = isUpper || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    if (isPlain)
      name += isUpper ? static_cast<char>(c - 'A' + 'a') : c;
    else if (!name.empty() && name.back() != '-')
      name += '-';
    if (name.size() == longest) break;
  }
  if (name.ends_with('-')) name.pop_back();
  return name.empty() ? "chart" : name;
}

} // namespace host
