#include <host/ChartSink.h>
#include <render/Pages.h>

host::PageWriter host::defaultPageWriter() {
  return {.writeChart = [](const auto& folder) { render::writeChart(folder); },
          .writeGallery = render::updateGallery,
          .versions = render::versions()};
}
