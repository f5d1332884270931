#pragma once

#include "translate/Translator.h"

namespace render {

/// Sorts an element's data along its place, so that what joins the marks goes there and
/// not as the rows do.
void sortAlongPlace(const Element& element, const Context& context, Json& data);

} // namespace render
