#include "read/Titles.h"
#include "translate/Translator.h"

namespace render {

/// A text of its own: title, subtitle or footnote.
void translateText(const Node& label, Context& context) {
  if (label.text.empty()) return;
  Parts& parts = context.parts;
  switch (placeOf(label)) {
  case TextPlace::title:
    return parts.title.push_back(label.text);
  case TextPlace::subtitle:
    return parts.subtitle.push_back(label.text);
  case TextPlace::footnote:
    return parts.footnotes.push_back(label.text);
  }
}

} // namespace render
