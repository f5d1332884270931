#include "data/TableSchema.h"

#include <algorithm>
#include <set>

#include <fmt/format.h>

#include "data/DataColumn.h"
#include "data/JsonFile.h"
#include "data/Refusal.h"

namespace host {

using nlohmann::json;

namespace {

struct TypeRule {
  std::string_view name;
  Field::Type type;
  DisplayFormat format; ///< of a field that states none
};

constexpr TypeRule types[] = {
    {"string", Field::Type::string, {textFormat, 1, 0}},
    {"any", Field::Type::string, {textFormat, 1, 0}},
    {"number", Field::Type::number, {numberFormat, 8, 2}},
    {"integer", Field::Type::integer, {numberFormat, 8, 0}},
    {"boolean", Field::Type::boolean, {numberFormat, 8, 0}},
    {"date", Field::Type::date, usualDate},
    {"datetime", Field::Type::dateTime, {22, 20, 0}},
    {"time", Field::Type::time, {21, 8, 0}},
    {"year", Field::Type::year, {numberFormat, 8, 0}},
    {"yearmonth", Field::Type::yearMonth, {28, 8, 0}},
};

bool isOfDates(Field::Type type) {
  constexpr Field::Type ofDates[] = {Field::Type::date, Field::Type::dateTime, Field::Type::time,
                                     Field::Type::year, Field::Type::yearMonth};
  return std::ranges::find(ofDates, type) != std::end(ofDates);
}

const TypeRule& typeOf(const json& field) {
  const std::string name = textMember(field, "type", "string");
  const auto* rule = std::ranges::find(types, name, &TypeRule::name);
  if (rule == std::end(types))
    throw Refusal(fmt::format("the type {} is not supported, only string, number, integer, "
                              "boolean, date, datetime, time, year and yearmonth",
                              shown(name)));
  return *rule;
}

/// The standard uses "format" for its own names too; those say nothing about the
/// display.
DisplayFormat formatOf(const json& field, const TypeRule& rule) {
  constexpr std::string_view standardNames[] = {"default", "email", "uri", "binary", "uuid"};
  std::string name = textMember(field, "chartxml:format", "");
  if (name.empty()) {
    name = textMember(field, "format", "");
    if (name.empty() || std::ranges::find(standardNames, name) != std::end(standardNames))
      return rule.format;
    if (isOfDates(rule.type) && (name == "any" || name.find('%') != std::string::npos))
      throw Refusal(fmt::format("a {} is read in the standard's default form only, not as {}",
                                rule.name, shown(name)));
  }
  const DisplayFormat format = parseDisplayFormat(name);
  if ((format.type == textFormat) != (rule.type == Field::Type::string))
    throw Refusal(fmt::format("the display format {} does not go with the type {}", shown(name),
                              shown(rule.name)));
  return format;
}

using Value = std::variant<double, std::string>;

/// A text's trailing blanks do not count, neither here nor in the data.
Value categoryValue(const json& value, const TypeRule& rule) {
  if (rule.type == Field::Type::string && value.is_string()) {
    const std::string& text = textOf(value, "a category");
    return text.substr(0, text.find_last_not_of(' ') + 1);
  }
  if (rule.type == Field::Type::boolean && value.is_boolean()) return value.get<bool>() ? 1.0 : 0.0;
  const bool takesNumbers = rule.type == Field::Type::number || rule.type == Field::Type::integer;
  if (takesNumbers && value.is_number()) return value.get<double>();
  if (rule.type == Field::Type::year && value.is_number_integer())
    return valueOf(rule.type, value.dump());
  if (isOfDates(rule.type) && value.is_string())
    return valueOf(rule.type, value.get<std::string>());
  throw Refusal(fmt::format("the category {} does not go with the type {}", shownJson(value),
                            shown(rule.name)));
}

std::vector<Category> categoriesOf(const json& field, const TypeRule& rule) {
  std::vector<Category> categories;
  std::set<Value> known;
  for (const json& category : listMember(field, "categories")) {
    const json* stored = category.is_object() ? member(category, "value") : &category;
    if (!stored) throw Refusal("a category has no \"value\"");
    const Value value = categoryValue(*stored, rule);
    if (!known.insert(value).second)
      throw Refusal(fmt::format("the category {} stands twice", shownJson(*stored)));
    const std::string plain = stored->is_string() ? stored->get<std::string>() : stored->dump();
    categories.push_back({value, textMember(category, "label", plain)});
  }
  return categories;
}

std::vector<std::string> missingValuesOf(const json& object,
                                         const std::vector<std::string>& usual) {
  if (!member(object, "missingValues")) return usual;
  std::vector<std::string> values;
  for (const json& value : listMember(object, "missingValues"))
    values.push_back(value.is_object() ? textMember(value, "value", "")
                                       : textOf(value, "a missing value"));
  return values;
}

Field fieldOf(const json& description, const std::vector<std::string>& missingValues) {
  const TypeRule& rule = typeOf(description);
  Field field{.name = textMember(description, "name", ""),
              .label = textMember(description, "title", ""),
              .type = rule.type};
  if (field.name.empty()) throw Refusal("the field has no \"name\"");
  field.format = formatOf(description, rule);
  field.missingValues = missingValuesOf(description, missingValues);
  field.categories = categoriesOf(description, rule);
  return field;
}

} // namespace

std::vector<Field> fieldsOf(const json& schema) {
  if (!schema.is_object()) throw Refusal("\"schema\" must be an object");
  if (!member(schema, "fields")) throw Refusal("\"schema\" has no \"fields\"");
  const auto missingValues = missingValuesOf(schema, {""});
  std::vector<Field> fields;
  for (const json& description : listMember(schema, "fields")) {
    try {
      fields.push_back(fieldOf(description, missingValues));
    } catch (const Refusal& refusal) {
      const json* name = member(description, "name");
      throw Refusal(fmt::format("field {}: {}",
                                name ? shownJson(*name) : std::to_string(fields.size() + 1),
                                refusal.what()));
    }
  }
  return fields;
}

} // namespace host
