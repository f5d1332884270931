#include <host/ChartError.h>
#include <host/ChartSink.h>
#include <host/ErrorLog.h>
#include <render/Pages.h>

namespace {

/// A page that cannot be made is reported; the chart and its data are kept.
template <void (*write)(const std::filesystem::path&)>
void writeOrReport(const std::filesystem::path& folder) {
  try {
    write(folder);
  } catch (const std::exception& e) {
    host::reportError(e.what());
  }
}

} // namespace

host::PageWriter host::defaultPageWriter() {
  return {.writeChart = writeOrReport<render::writeChart>,
          .writeGallery = writeOrReport<render::writeGallery>};
}
