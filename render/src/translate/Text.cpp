#include <fmt/format.h>

#include "translate/Translator.h"

namespace render {
namespace {

struct Place {
  std::string_view word; ///< in the label's id
  std::vector<std::string> Parts::* texts;
};

/// In this order: "title" is part of "subtitle".
constexpr Place places[] = {
    {"footnote", &Parts::footnotes},
    {"subtitle", &Parts::subtitle},
    {"title", &Parts::title},
};

} // namespace

/// A text of its own: title, subtitle or footnote, as its id says. A text that
/// says nothing of its place is a footnote, so that it is read at all.
void translateText(const Node& label, Context& context) {
  if (label.text.empty()) return;
  for (const Place& place : places) {
    if (label.id().find(place.word) == std::string_view::npos) continue;
    (context.parts.*place.texts).push_back(label.text);
    return;
  }
  context.parts.footnotes.push_back(label.text);
}

} // namespace render
