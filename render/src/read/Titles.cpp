#include "read/Titles.h"

#include <string_view>

namespace render {
namespace {

struct PlaceWord {
  std::string_view word; ///< in the label's id
  TextPlace place;
};

/// In this order: "title" is part of "subtitle".
constexpr PlaceWord placeWords[] = {
    {"footnote", TextPlace::footnote},
    {"subtitle", TextPlace::subtitle},
    {"title", TextPlace::title},
};

/// Below the document element and in frames stand the labels that are texts of the chart.
void collect(const Node& node, TextPlace place, std::vector<std::string>& texts) {
  for (const Node& child : node.children) {
    if (child.kind == "frame") collect(child, place, texts);
    if (child.kind == "label" && !child.text.empty() && placeOf(child) == place)
      texts.push_back(child.text);
  }
}

} // namespace

TextPlace placeOf(const Node& label) {
  for (const PlaceWord& each : placeWords)
    if (label.id().find(each.word) != std::string_view::npos) return each.place;
  return TextPlace::footnote;
}

std::vector<std::string> textsAt(TextPlace place, const Document& document) {
  std::vector<std::string> texts;
  collect(document.graph(), place, texts);
  return texts;
}

} // namespace render
