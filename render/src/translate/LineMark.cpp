#include "translate/LineMark.h"

#include "translate/Encode.h"

namespace render {

void addLineMark(const Element& element, Json update, const Json& walk, Context& context) {
  Json mark{{"type", "line"},
            {"from", nullptr},
            {"clip", isClipped(context.chart)},
            {"encode", {{"update", std::move(update)}}}};
  if (!walk.is_null()) mark["walk"] = walk;
  addMark(element, std::move(mark), true, context);
}

} // namespace render
