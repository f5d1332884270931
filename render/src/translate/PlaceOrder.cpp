#include "translate/PlaceOrder.h"

#include <fmt/format.h>

#include "text/Expression.h"
#include "translate/Encode.h"

namespace render {
namespace {

/// Where each row stands among the categories of a scale, whose keys may be numbers.
Json placeAmong(const std::vector<Category>& categories, const Variable& place) {
  Json keys = Json::array();
  for (const Category& category : categories)
    keys.push_back(category.key);
  return {{"type", "formula"},
          {"as", "place"},
          {"expr", fmt::format("indexof({},{})", keys.dump(-1, ' ', true), datum(place.id))}};
}

} // namespace

void sortAlongPlace(const Element& element, const Context& context, Json& data) {
  const Variable* place = element.place();
  if (place == nullptr) return;
  if (place->categorical)
    data["transform"].push_back(placeAmong(context.along(placeRole(element)).categories, *place));
  const bool isColumn = element.isPlain() && !place->categorical;
  data["transform"].push_back(
      {{"type", "collect"}, {"sort", {{"field", isColumn ? fieldPath(place->id) : "place"}}}});
}

} // namespace render
