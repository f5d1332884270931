#include "translate/Tooltip.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "compute/Sample.h"
#include "text/Expression.h"
#include "translate/Encode.h"
#include "translate/Groups.h"

namespace render {
namespace {

using Entries = std::vector<std::string>;

std::string item(std::string_view field) { return fmt::format("datum.{}", field); }

/// The categories that the panel is for.
Entries panelEntries(const Context& context) {
  const Facets& facets = context.chart.facets;
  Entries entries;
  if (facets.isMatrix || !facets.isSplit()) return entries;
  const Panel& panel = context.panel();
  for (const FacetCell* cell : {&facets.columns[panel.column], &facets.rows[panel.row]})
    for (const FacetValue& value : *cell) {
      const Category& category = value.variable->categories[value.category];
      entries.push_back(entry(value.variable->title, category.expression.empty()
                                                         ? literal(category.label)
                                                         : category.expression));
    }
  return entries;
}

/// Whether the panel tells its value already.
bool isOfPanel(const Variable& variable, const Context& context) {
  const Facets& facets = context.chart.facets;
  if (facets.isMatrix || !facets.isSplit()) return false;
  const Panel& panel = context.panel();
  return std::ranges::any_of(std::array{&facets.columns[panel.column], &facets.rows[panel.row]},
                             [&](const FacetCell* cell) {
                               return std::ranges::find(*cell, &variable, &FacetValue::variable) !=
                                      cell->end();
                             });
}

/// The name of an element whose variables do not tell it from others.
bool needsName(const Element& element) {
  const std::string_view name = element.node->attribute("name");
  if (name.empty() || element.isComposed()) return false;
  return std::ranges::none_of(
      std::array{element.x, element.y, element.z}, [&](const Variable* variable) {
        return variable != nullptr && variable->title.find(name) != std::string::npos;
      });
}

/// What tells an element's marks from those of others.
std::vector<const Variable*> seriesVariables(const Element& element) {
  std::vector<const Variable*> variables;
  const auto add = [&](const Variable* variable) {
    if (variable != nullptr && std::ranges::find(variables, variable) == variables.end())
      variables.push_back(variable);
  };
  add(element.group);
  add(element.shape);
  for (const Variable* split : element.splits)
    add(split);
  return variables;
}

/// A row as it is: all of its variables that the element shows, each once.
Entries rowEntries(const Element& element, Context& context) {
  Entries entries = seriesEntries(element, context);
  std::vector<const Variable*> told = seriesVariables(element);
  const auto add = [&](const Variable* variable) {
    const bool isNew = variable != nullptr && variable->texts != nullptr &&
                       std::ranges::find(told, variable) == told.end();
    if (!isNew) return;
    told.push_back(variable);
    entries.push_back(rowEntry(*variable, context));
  };
  for (const Variable* label : element.labels)
    if (label->categorical) add(label);
  for (const Variable* variable : {element.x, element.y, element.z, element.shade, element.size})
    add(variable);
  return entries;
}

std::string shareText(const Element& element, const std::string& text) {
  const Variable* measure = element.measure();
  const bool hasFormat =
      measure != nullptr && !std::holds_alternative<std::monostate>(measure->format);
  return hasFormat ? text : fmt::format("format({},\".1f\")+\"%\"", item("value"));
}

/// What an item measures: a range, one of several variables, or a value.
std::string measureEntry(const Element& element, const Context& context) {
  const std::string_view role = measureRole(element);
  const Variable* measure = element.measure();
  const auto text = [&](std::string_view field) {
    return valueAlong(role, measure, item(field), context);
  };
  const std::string title = measureTitle(element, context);
  const std::string_view summary = element.summary != nullptr ? element.summary->name : "";
  if (summary == "range" || summary == "tukeyInnerFence")
    return entry(title, rangeText(text("low"), text("high"), context.words));
  if (!element.isComposed() || measure == nullptr || measure->members.empty())
    return entry(title, element.method == Method::share ? shareText(element, text("value"))
                                                        : text("value"));
  if (element.hasBase) return entry(title, rangeText(text("low"), text("value"), context.words));
  Entries titles;
  for (const Variable* member : measure->members)
    titles.push_back(literal(member->title));
  return fmt::format("[[{}][datum.member],{}]", fmt::join(titles, ","), text("value"));
}

Entries itemEntries(const Element& element, Context& context) {
  Entries entries = placeEntries(element, context);
  const Variable* place = element.place();
  if (place != nullptr && !place->categorical) {
    const auto text = [&](std::string_view field) {
      return valueAlong(placeRole(element), place, item(field), context);
    };
    entries.push_back(entry(place->title, element.method == Method::histogram
                                              ? rangeText(text("from"), text("to"), context.words)
                                              : text("place")));
  }
  if (element.method == Method::dots) return entries; // each is one row
  if (element.method == Method::hexagons) {
    const Variable* other = element.measure();
    entries.push_back(
        entry(other->title, valueAlong(measureRole(element), other, item("high"), context)));
    entries.push_back(entry(context.words("Count"), valueText(Format(), item("value"))));
    return entries;
  }
  entries.push_back(measureEntry(element, context));
  if (element.summary != nullptr && element.summary->name == "tukeyInnerFence")
    entries.push_back(entry("", literal(context.words("Whisker"))));
  return entries;
}

} // namespace

std::string entry(std::string_view title, std::string_view text) {
  return fmt::format("[{},{}]", literal(title), text);
}

std::string rowEntry(const Variable& variable, Context& context) {
  const std::string value = datum(variable.id);
  if (!variable.categorical) return entry(variable.title, textOf(variable, value));
  addLabelScale(variable, context.parts);
  return entry(variable.title,
               fmt::format("scale({},{})", literal(scaleName("label", variable.id)), value));
}

std::string valueAlong(std::string_view role, const Variable* variable, std::string_view value,
                       const Context& context) {
  const bool isPlain =
      variable == nullptr ||
      (variable->valueLabels.empty() && std::holds_alternative<std::monostate>(variable->format));
  return isPlain ? valueText(context.along(role).format(), value) : textOf(*variable, value);
}

std::string rangeText(std::string_view from, std::string_view to, const Words& words) {
  constexpr std::string_view mark = "^";
  std::string text;
  const std::string pattern = words("From to^2", {"^1", "^2"});
  for (std::size_t at = 0; at < pattern.size();) {
    const std::size_t sign = std::min(pattern.find(mark, at), pattern.size());
    if (sign > at) text += fmt::format("+{}", literal(pattern.substr(at, sign - at)));
    if (sign < pattern.size()) text += fmt::format("+{}", pattern[sign + 1] == '1' ? from : to);
    at = sign + 2;
  }
  return "\"\"" + text;
}

std::string titleAlong(std::string_view role, const Context& context) {
  const Node* dimension = context.chart.dimensionNode(role);
  const Node* axis = dimension != nullptr ? dimension->child("axis") : nullptr;
  const Node* label = axis != nullptr ? axis->child("label") : nullptr;
  return label != nullptr ? label->text : std::string();
}

std::vector<std::string> seriesEntries(const Element& element, Context& context) {
  Entries entries = panelEntries(context);
  if (needsName(element)) entries.push_back(entry("", literal(element.node->attribute("name"))));
  for (const Variable* variable : seriesVariables(element))
    if (variable->categorical && !isOfPanel(*variable, context))
      entries.push_back(rowEntry(*variable, context));
  return entries;
}

std::vector<std::string> placeEntries(const Element& element, Context& context) {
  Entries entries = seriesEntries(element, context);
  const Variable* place = element.place();
  const std::vector<const Variable*> told = seriesVariables(element);
  if (place != nullptr && place->categorical && std::ranges::find(told, place) == told.end())
    entries.push_back(rowEntry(*place, context));
  return entries;
}

std::string measureTitle(const Element& element, const Context& context) {
  const Variable* measure = element.measure();
  const bool isNamed = measure != nullptr && measure->members.empty();
  if (isNamed) return measure->title;
  std::string title(element.node->attribute("name"));
  if (title.empty() && element.method == Method::distribution) return context.words("normal curve");
  if (title.empty() && !element.isSlice) title = titleAlong(measureRole(element), context);
  if (title.empty()) return measure != nullptr ? measure->title : context.words("Count");
  return title;
}

Json tooltipOf(const std::vector<std::string>& entries) {
  return {{"signal", fmt::format("[{}]", fmt::join(entries, ","))}};
}

Json tooltip(const Element& element, Context& context) {
  return tooltipOf(element.isPlain() ? rowEntries(element, context)
                                     : itemEntries(element, context));
}

Json seriesTooltip(const Element& element, Context& context) {
  return tooltipOf(seriesEntries(element, context));
}

Json seriesDescription(const Element& element, Context& context) {
  Entries entries = seriesEntries(element, context);
  if (entries.empty()) return {{"value", measureTitle(element, context)}};
  for (std::string& each : entries)
    each = fmt::format("join({},\": \")", each);
  return {{"signal", fmt::format("{}", fmt::join(entries, "+\"; \"+"))}};
}

const char* walkAlong(std::string_view role, const Context& context) {
  if (isAcross(role, context.chart)) return "right";
  return context.along(role).categorical ? "down" : "up";
}

Json walkOf(const Element& element, const Context& context) {
  const Chart& chart = context.chart;
  const std::string_view role = placeRole(element);
  Json walk = Json::object();
  if (chart.space != nullptr)
    walk["by"] = element.x->id;
  else if (!chart.isPolar)
    walk["along"] = walkAlong(role, context);
  Json groups = Json::array();
  for (const Variable* variable : seriesVariables(element))
    groups.push_back(variable->id);
  if (!groups.empty()) walk["groups"] = std::move(groups);
  return walk;
}

} // namespace render
