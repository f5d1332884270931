#include "page/Runtime.h"

#include <fmt/format.h>
#include <host/StringTables.h>
#include <render/Pages.h>

#include "page/Files.h"

namespace render {

void placeRuntime(const std::filesystem::path& outputFolder) {
  static constexpr const char* script = "chartxml-page.js";
  const std::filesystem::path from =
      std::filesystem::path(host::shareFolder()) / "runtime" / script;
  if (!exists(from)) return;
  const std::filesystem::path folder = outputFolder / "runtime";
  std::error_code error;
  create_directory(folder, error);
  if (error) throw RenderError(fmt::format("{}: {}", folder.native(), error.message()));

  const std::string bytes = readFile(from);
  const std::filesystem::path to = folder / script;
  if (file_size(to, error) == bytes.size() && !error && readFile(to) == bytes) return;
  writeFile(to, bytes);
}

} // namespace render
