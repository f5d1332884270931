#pragma once

#include <string>
#include <vector>

#include "read/Document.h"
#include "read/Node.h"

namespace render {

/// Where a text of its own stands in the picture.
enum class TextPlace { title, subtitle, footnote };

/// That of a label, as its id says. A text that says nothing of its place is a footnote, so
/// that it is read at all.
TextPlace placeOf(const Node& label);

/// The texts of a chart that stand at a place, in the order of the document.
std::vector<std::string> textsAt(TextPlace place, const Document& document);

} // namespace render
