#include <host/StringTables.h>

#include <cstdlib>
#include <filesystem>

#include <dlfcn.h>
#include <link.h>

#include <fmt/format.h>

#include <host/ErrorLog.h>

namespace {

namespace fs = std::filesystem;

// The file that this code was loaded from: the shared library, or the program
// that it is linked into.
fs::path loadedFile() {
  Dl_info info;
  link_map* map = nullptr;
  const auto here = reinterpret_cast<const void*>(&host::shareFolder);
  if (dladdr1(here, &info, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) == 0) return {};
  const bool isProgram = map->l_name[0] == '\0';
  std::error_code failed;
  return fs::canonical(isProgram ? "/proc/self/exe" : map->l_name, failed);
}

// The library may lie in a folder of its machine, lib/x86_64-linux-gnu.
std::string findShareFolder() {
  constexpr int levels = 3;
  const fs::path folder = loadedFile().parent_path();
  fs::path above = folder.parent_path();
  for (int level = 0; level < levels; ++level, above = above.parent_path()) {
    std::error_code failed;
    if (fs::is_directory(above / "share/chartxml", failed)) return above / "share/chartxml";
  }
  return folder.parent_path() / "share/chartxml";
}

// Found while the library is loaded: its file may be named relative to a working
// directory that the program leaves later.
const std::string foundShareFolder = findShareFolder();

} // namespace

const PathFactory& PathFactory::getPathInstance(int kind) {
  constexpr int stringTables = 3;
  static const PathFactory paths;
  if (kind != stringTables) host::reportError(fmt::format("no path of kind {}", kind));
  return paths;
}

std::string PathFactory::stringTablePath() const {
  const char* named = std::getenv("CHARTXML_STRINGS");
  if (named && *named) return named;
  return host::shareFolder() + "/strings";
}

std::string host::shareFolder() { return foundShareFolder; }
