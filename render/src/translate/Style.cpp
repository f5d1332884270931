#include "translate/Style.h"

#include <algorithm>
#include <array>

#include "text/Show.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {
namespace {

/// What a word in the id of an element says of it; the first that is found counts.
template <typename Value> struct Word {
  std::string_view word;
  Value value;
};

constexpr Word<Look> looks[] = {
    {"hidden", Look::hidden},
    {"errorbar", Look::capped},
    {"differenceline", Look::thin},
    {"dropdownline", Look::thin},
};

constexpr Word<std::string_view> interpolations[] = {
    {"center_step", "step"},
    {"Center_Step", "step"},
    {"centerstep", "step"},
    {"survival_line", "step-after"},
};

constexpr LineLook centerLine{.stroke = "ink", .isDashed = false};
constexpr LineLook limit{.stroke = "palette[1]", .isDashed = true};
constexpr LineLook specification{.stroke = "ink", .isDashed = true};

constexpr Word<std::optional<LineLook>> lineLooks[] = {
    {"controlchart_Average", centerLine},
    {"controlchart_LCL", limit},
    {"controlchart_UCL", limit},
    {"controlchart_Center_Step_LCL", limit},
    {"controlchart_Center_Step_UCL", limit},
    {"controlchart_LSpec", specification},
    {"controlchart_USpec", specification},
};

template <typename Value, std::size_t count>
Value valueOf(const Node& element, const Word<Value> (&words)[count], Value otherwise) {
  for (const auto& [word, value] : words)
    if (element.id().find(word) != std::string_view::npos) return value;
  return otherwise;
}

} // namespace

Look lookOf(const Node& element) { return valueOf(element, looks, Look::usual); }

std::string_view interpolationOf(const Node& element) {
  return valueOf(element, interpolations, std::string_view("linear"));
}

std::optional<LineLook> lineLookOf(const Node& element) {
  return valueOf(element, lineLooks, std::optional<LineLook>());
}

double areaOpacity(const Element& element) {
  return element.isComposed() ? theme::bandOpacity : theme::areaOpacity;
}

bool isCensored(const Node& element) {
  return element.id().find("survival_censored") != std::string_view::npos;
}

void forEachProperty(std::string_view value,
                     const std::function<void(std::string_view, std::string_view)>& take) {
  while (!value.empty()) {
    const std::string_view property = value.substr(0, value.find(';'));
    value.remove_prefix(std::min(property.size() + 1, value.size()));
    if (property.empty()) continue;
    const std::size_t colon = std::min(property.find(':'), property.size());
    take(property.substr(0, colon), property.substr(std::min(colon + 1, property.size())));
  }
}

bool isHollow(const Node& element, const Chart& chart) {
  const Node* style = chart.folder->document.find(element.attribute("style"));
  bool hollow = false;
  if (style != nullptr)
    forEachProperty(style->attribute("value"), [&](std::string_view name, std::string_view value) {
      if (name == "fill") hollow = value == "transparent";
    });
  return hollow;
}

/// The properties are drawn where the style is used; here the others are noted.
void translateStyle(const Node& style, Context& context) {
  using Property = std::pair<std::string_view, std::string_view>;
  static constexpr std::array<Property, 2> drawn{Property{"fill", "transparent"},
                                                 Property{"fill-pattern", "0"}};
  forEachProperty(style.attribute("value"), [&](std::string_view name, std::string_view value) {
    if (std::ranges::find(drawn, Property{name, value}) == drawn.end())
      context.notes.add("Style not drawn yet^3", {style.name(), shown(name), shown(value)});
  });
}

} // namespace render
