#pragma once

#include <string>
#include <vector>

#include "read/Document.h"

namespace render {

/// What a chart is called by its elements, in English and in its own language, for those
/// who search among many: "Histogram", "Box plot".
std::vector<std::string> kindsOf(const Document& document, const std::string& language);

} // namespace render
