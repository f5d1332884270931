#include <host/ChartSink.h>
#include <render/Pages.h>

host::PageWriter host::defaultPageWriter() {
  return {.writeChart = render::writeChart,
          .writeGallery = render::writeGallery,
          .versions = render::versions()};
}
