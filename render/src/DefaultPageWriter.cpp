#include <host/ChartSink.h>
#include <render/Pages.h>

host::PageWriter host::defaultPageWriter() {
  return {.writeChart = [](const auto& folder) { return render::writeChart(folder); },
          .writeGallery = render::updateGallery,
          .versions = render::versions()};
}
