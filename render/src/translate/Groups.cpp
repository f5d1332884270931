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

void addLabelScale(const Variable& variable, Parts& parts) {
  std::string name = scaleName("label", variable.id);
  if (parts.hasScale(name)) return;
  Json labels = Json::array();
  for (const Category& category : variable.categories)
    labels.push_back(category.label);
  parts.scales.push_back(categoryScale(name, variable.categories, std::move(labels)));
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
  return std::ranges::any_of(chart.elements, [&](const Element& element) {
    return element.group == &group && element.node->attribute("type") == "point";
  });
}

} // namespace render
