#include "page/Runtime.h"

#include <fmt/format.h>
#include <host/StringTables.h>
#include <render/Pages.h>

#include "page/Files.h"

namespace render {

void placeRuntime(const std::filesystem::path& outputFolder) {
  const std::filesystem::path from = std::filesystem::path(host::shareFolder()) / "runtime";
  const std::filesystem::path folder = outputFolder / "runtime";
  std::error_code error;
  for (const char* script : {"chartxml-page.js", "chartxml-gallery.js"}) {
    if (!exists(from / script)) continue;
    create_directory(folder, error);
    if (error) throw RenderError(fmt::format("{}: {}", folder.native(), error.message()));
    writeChanged(folder / script, readFile(from / script));
  }
}

} // namespace render
