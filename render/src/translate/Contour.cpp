#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/LineMark.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {

/// Lines of equal density, the fainter the lower.
void translateContour(const Node& node, Context& context) {
  const Element* element = context.find(node);
  if (element == nullptr) return;
  Json update = positions(*element, context);
  update["stroke"] = color(*element, context);
  update["strokeWidth"] = {{"value", theme::thinWidth}};
  update["strokeOpacity"] = {{"signal", "0.4+datum.value/150"}};
  update["tooltip"] = {{"signal", "[[\"\",format(datum.value/100,\"%\")]]"}};
  context.parts.data.push_back(elementData(*element, context));
  addLineMark(*element, std::move(update), context);
}

} // namespace render
