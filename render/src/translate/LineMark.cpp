#include "translate/LineMark.h"

#include "translate/Encode.h"

namespace render {

void addLineMark(const Element& element, Json update, Context& context) {
  addMark(element,
          {{"type", "line"},
           {"from", nullptr},
           {"clip", isClipped(context.chart)},
           {"encode", {{"update", std::move(update)}}}},
          true, context);
}

} // namespace render
