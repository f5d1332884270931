#include <fmt/format.h>

#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/LineMark.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"
#include "translate/Translator.h"

namespace render {
namespace {

/// "30 % of the highest density", as an expression.
std::string densityText(const Words& words) {
  const std::string pattern = words("Density^1", {"^"});
  const std::size_t sign = pattern.find('^');
  return fmt::format("{}+format(datum.value/100,\"%\")+{}", literal(pattern.substr(0, sign)),
                     literal(pattern.substr(sign + 1)));
}

} // namespace

/// Lines of equal density, the fainter the lower.
void translateContour(const Node& node, Context& context) {
  const Element* element = context.find(node);
  if (element == nullptr) return;
  Json update = positions(*element, context);
  update["stroke"] = color(*element, context);
  update["strokeWidth"] = {{"value", theme::thinWidth}};
  update["strokeOpacity"] = {{"signal", "0.4+datum.value/150"}};
  std::vector<std::string> entries = seriesEntries(*element, context);
  entries.push_back(entry("", densityText(context.words)));
  update["tooltip"] = tooltipOf(entries);
  context.parts.data.push_back(elementData(*element, context));
  addLineMark(*element, std::move(update), {{"whole", true}}, context);
}

} // namespace render
