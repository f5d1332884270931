#include <host/OutputText.h>

#include <deque>
#include <string>

#include <fmt/format.h>
#include <host/ChartError.h>
#include <host/ChartSink.h>

namespace {

// Never destroyed: a view of a cell's bytes stays good until the process ends.
std::deque<std::string>& cells() {
  static auto& theCells = *new std::deque<std::string>;
  return theCells;
}

} // namespace

int SkCellText::Replicate(const SkString& text) {
  cells().push_back(text.bytes());
  return static_cast<int>(cells().size() - 1);
}

std::string_view SkCellText::text(int handle) {
  const auto index = static_cast<std::size_t>(handle);
  return handle >= 0 && index < cells().size() ? cells()[index] : std::string_view();
}

void SkError(const SkString& text, SkErrorShow, SkErrorLevel) {
  try {
    host::chartSink().noteError(text.bytes());
  } catch (const ChartException& reason) {
    ChartErrorHandler::error(ChartException(
        fmt::format("the output's error list can't take \"{}\": {}", text.bytes(), reason.what()),
        reason.source(), reason.line()));
  }
}
