#include <host/ChartSink.h>
#include <render/Pages.h>

host::PageWriter host::defaultPageWriter() {
  return {.writeChart = render::writeChart,
          .writeGallery = render::updateGallery,
          .versions = render::versions()};
}
