#include "page/Kinds.h"

#include <algorithm>

#include "text/Words.h"

namespace render {
namespace {

/// A node with an attribute, and the word that it makes the chart found by.
struct Kind {
  std::string_view node, attribute, value, word;
};
constexpr Kind kinds[] = {
    {"element", "type", "point", "Scatter plot"},
    {"element", "type", "line", "Line chart"},
    {"element", "type", "interval", "Bar chart"},
    {"element", "type", "area", "Area chart"},
    {"element", "type", "schema", "Box plot"},
    {"element", "type", "tile", "Heat map"},
    {"statistic", "method", "histogram", "Histogram"},
    {"parameter", "name", "grid", "Hexagonal bins"},
    {"dimension", "role", "theta", "Pie chart"},
    {"coordinateTransform", "method", "rectangular", "Scatter plot in space"},
};

void collect(const Node& node, std::vector<std::string_view>& found) {
  for (const Kind& kind : kinds) {
    const bool isSo = node.kind == kind.node && node.attribute(kind.attribute) == kind.value;
    if (isSo && std::ranges::find(found, kind.word) == found.end()) found.push_back(kind.word);
  }
  for (const Node& child : node.children)
    collect(child, found);
}

} // namespace

std::vector<std::string> kindsOf(const Document& document, const std::string& language) {
  std::vector<std::string_view> found;
  collect(document.graph(), found);
  if (found.empty()) return {};
  std::vector<std::string> names;
  const Words english("en");
  const Words own(language);
  for (const std::string_view word : found)
    for (const Words* words : {&english, &own})
      if (std::string name = (*words)(word); names.empty() || names.back() != name)
        names.push_back(std::move(name));
  return names;
}

} // namespace render
