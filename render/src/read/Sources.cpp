#include "read/Sources.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>
#include <render/Pages.h>

#include "read/ChartFolder.h"

namespace render {
namespace {

/// Columns of these names are counted while the chart is drawn.
constexpr std::array<std::string_view, 3> countedColumns{"countname", "percentname", "casenum"};

} // namespace

bool hasOwnColumn(const Node& variable) {
  const bool isCounted =
      std::ranges::find(countedColumns, variable.attribute("sourceName")) != countedColumns.end();
  return !isCounted && variable.attribute("value").empty() &&
         variable.attribute("expression").empty();
}

std::string csvNameOf(std::string_view source) { return fmt::format("{}.csv", source); }

bool isRead(std::string_view source, const Node& graph) {
  return !source.empty() && std::ranges::any_of(graph.children, [source](const Node& node) {
    return node.kind == "variable" && node.attribute("source") == source && hasOwnColumn(node);
  });
}

std::string csvNameIn(const std::filesystem::path& document, std::string_view source) {
  const std::filesystem::path name = csvNameOf(source);
  if (name == name.filename()) return name.native();
  throw RenderError(
      fmt::format("{}: the source id \"{}\" names no file", document.native(), source));
}

} // namespace render
