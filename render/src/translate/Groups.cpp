#include "translate/Groups.h"

#include <algorithm>

#include <fmt/format.h>

#include "translate/Theme.h"

namespace render {

std::string scaleName(std::string_view purpose, std::string_view id) {
  return fmt::format("{}_{}", purpose, id);
}

Json categoryScale(const std::string& name, const std::vector<Category>& categories, Json range) {
  Json domain = Json::array();
  for (const Category& category : categories)
    domain.push_back(category.key);
  return {{"name", name},
          {"type", "ordinal"},
          {"domain", std::move(domain)},
          {"range", std::move(range)}};
}

Json labelRange(const std::vector<Category>& categories,
                const std::function<Json(const std::string&)>& lay) {
  Json labels = Json::array();
  std::string expressions;
  bool isComputed = false;
  for (const Category& category : categories) {
    isComputed = isComputed || !category.expression.empty();
    labels.push_back(lay ? lay(category.label) : Json(category.label));
    expressions += expressions.empty() ? "[" : ",";
    expressions +=
        category.expression.empty() ? labels.back().dump(-1, ' ', true) : category.expression;
  }
  if (!isComputed) return labels;
  return {{"signal", expressions + "]"}};
}

void addLabelScale(const Variable& variable, Parts& parts) {
  std::string name = scaleName("label", variable.id);
  if (parts.hasScale(name)) return;
  parts.scales.push_back(categoryScale(name, variable.categories, labelRange(variable.categories)));
}

void addGroupScales(const Variable& group, Parts& parts) {
  if (parts.hasScale(scaleName("color", group.id))) return;
  const auto add = [&](std::string_view purpose, Json range) {
    parts.scales.push_back(
        categoryScale(scaleName(purpose, group.id), group.categories, std::move(range)));
  };
  Json symbols = Json::array();
  for (const theme::Symbol& symbol : theme::symbols)
    symbols.push_back(symbol.path);
  add("color", {{"signal", "palette"}});
  add("symbol", std::move(symbols));
  add("dash", theme::dashes());
}

bool hasPoints(const Variable& group, const Chart& chart) {
  // Without colors, dashes tell lines apart beside the symbols too.
  if (theme::of(chart).hasPatterns) return false;
  return std::ranges::any_of(chart.elements, [&](const Element& element) {
    return element.group == &group && element.node->attribute("type") == "point";
  });
}

} // namespace render
