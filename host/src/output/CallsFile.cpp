#include "output/CallsFile.h"

#include <iterator>

#include <fmt/format.h>
#include <host/ChartFiles.h>

#include "output/FileWriter.h"
#include "output/JsonWriter.h"

namespace host {

void writeCalls(const std::filesystem::path& chartFolder, const NodeCalls& calls) {
  if (!calls) return;
  FileWriter file(chartFolder / callsName);
  JsonWriter writer(file);
  writer.beginObject();
  fmt::memory_buffer text;
  calls([&](std::string_view node, unsigned call, std::string_view name) {
    text.clear();
    fmt::format_to(std::back_inserter(text), "{} {}", call, name);
    writer.key(node);
    writer.text({text.data(), text.size()});
  });
  writer.end();
  file.finish();
}

} // namespace host
