#include "resolve/Variable.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <memory>
#include <unordered_map>
#include <unordered_set>

#include <fmt/format.h>
#include <unicode/coll.h>

#include "text/Expression.h"

namespace render {
namespace {

constexpr double missing = std::numeric_limits<double>::quiet_NaN();
/// Beyond it differences between values overflow. The system-missing value lies
/// there too.
constexpr double largest = 1e300;

std::vector<double> readNumbers(const Column& texts, std::string_view title, Notes& notes) {
  std::vector<double> numbers;
  numbers.reserve(texts.size());
  std::size_t refused = 0;
  for (const std::string_view text : texts.texts()) {
    double value = numberOf(text);
    if (!(std::abs(value) <= largest)) {
      if (!text.empty()) ++refused;
      value = missing;
    }
    numbers.push_back(value);
  }
  if (refused > 0)
    notes.add("Not numbers^3", {title, fmt::to_string(refused), fmt::to_string(texts.size())});
  return numbers;
}

/// Ascending: by number when all keys are numbers, else as the language sorts.
void sortKeys(std::vector<std::string>& keys, const std::string& language) {
  const auto isNumber = [](const std::string& key) { return !std::isnan(numberOf(key)); };
  if (std::ranges::all_of(keys, isNumber)) {
    std::ranges::sort(keys, {}, [](const std::string& key) { return numberOf(key); });
    return;
  }
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Collator> collator(
      icu::Collator::createInstance(icu::Locale(language.c_str()), status));
  std::ranges::sort(keys, [&](const std::string& a, const std::string& b) {
    UErrorCode ignored = U_ZERO_ERROR;
    const UCollationResult order = collator ? collator->compareUTF8(a, b, ignored) : UCOL_EQUAL;
    return order == UCOL_EQUAL ? a < b : order == UCOL_LESS;
  });
}

/// A value without a label of its own shows itself, in the variable's format.
Category unlabelled(const std::string& key, const Format& format) {
  const double value = numberOf(key);
  const bool isFormatted = !std::holds_alternative<std::monostate>(format) && !std::isnan(value);
  return {.key = key,
          .label = key,
          .expression = isFormatted ? valueText(format, literal(value)) : std::string()};
}

std::vector<Category> readCategories(const Node& node, const Column& texts, const Format& format,
                                     const std::string& language) {
  const auto all = texts.texts();
  const std::unordered_set<std::string_view> distinct(all.begin(), all.end());
  std::vector<std::string> keys;
  for (const std::string_view key : distinct)
    if (!key.empty()) keys.emplace_back(key);
  sortKeys(keys, language);

  std::unordered_map<std::string_view, std::string_view> labelOfKey;
  for (const Node& child : node.children)
    if (child.kind == "relabel")
      labelOfKey.try_emplace(child.attribute("from"), child.attribute("to"));

  std::vector<Category> categories;
  for (const std::string& key : keys) {
    const auto label = labelOfKey.find(key);
    if (label == labelOfKey.end())
      categories.push_back(unlabelled(key, format));
    else
      categories.push_back({.key = key, .label = std::string(label->second)});
  }
  return categories;
}

std::vector<ValueLabel> readValueLabels(const Node& node) {
  std::vector<ValueLabel> labels;
  for (const Node& child : node.children) {
    const double value = numberOf(child.attribute("from"));
    if (child.kind == "relabel" && !std::isnan(value))
      labels.push_back({.value = value, .label = std::string(child.attribute("to"))});
  }
  return labels;
}

/// The id of the rows that a variable reads; it may name another variable that reads
/// them.
std::string rowsOf(const Node& node, const ChartFolder& folder) {
  constexpr int deepest = 10; // variables may name each other in a circle
  std::string_view id = node.attribute("source");
  for (int i = 0; i < deepest; ++i) {
    const Node* named = folder.document.find(id);
    if (named == nullptr || named->kind != "variable") break;
    id = named->attribute("source");
  }
  return std::string(id);
}

const Column* findColumn(const Node& node, const Table* table) {
  return table == nullptr ? nullptr : table->find(node.attribute("sourceName"));
}

/// "constant(label)" is the value label; any other text is a value itself.
std::shared_ptr<const Column> constantColumn(const Node& node, const Table* table) {
  constexpr std::string_view begin = "constant(";
  std::string_view value = node.attribute("value");
  if (value.empty() || table == nullptr) return nullptr;
  if (value.starts_with(begin) && value.ends_with(')'))
    value = value.substr(begin.size(), value.size() - begin.size() - 1);
  const auto column = std::make_shared<Column>();
  for (std::size_t row = 0; row < table->rowCount; ++row)
    column->add(value);
  return column;
}

std::vector<double> codesOf(const Column& texts, const std::vector<Category>& categories) {
  std::unordered_map<std::string_view, double> codeOfKey;
  for (const Category& category : categories)
    codeOfKey.try_emplace(category.key, static_cast<double>(codeOfKey.size()));
  std::vector<double> codes;
  codes.reserve(texts.size());
  for (const std::string_view text : texts.texts())
    codes.push_back(text.empty() ? missing : codeOfKey.at(text));
  return codes;
}

} // namespace

double numberOf(std::string_view text) {
  double value = missing;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size() ? value : missing;
}

std::string textOf(const Variable& variable, std::string_view value) {
  return labelled(variable.valueLabels, value, valueText(variable.format, value));
}

std::string labelled(const std::vector<ValueLabel>& labels, std::string_view value,
                     std::string otherwise) {
  if (labels.empty()) return otherwise;
  std::vector<std::string> values;
  std::vector<std::string> texts;
  for (const ValueLabel& each : labels) {
    values.push_back(literal(each.value));
    texts.push_back(literal(each.label));
  }
  const std::string place = fmt::format("indexof([{}],{})", fmt::join(values, ","), value);
  return fmt::format("({0}<0?{1}:[{2}][{0}])", place, otherwise, fmt::join(texts, ","));
}

bool Variable::isMissing(std::size_t row) const {
  if (members.empty()) return std::isnan((categorical ? codes : numbers)[row]);
  const auto isMissingIn = [row](const Variable* member) { return member->isMissing(row); };
  return isMatrix ? std::ranges::any_of(members, isMissingIn)
                  : std::ranges::all_of(members, isMissingIn);
}

Variable readVariable(const Node& node, const ChartFolder& folder, Notes& notes) {
  Variable variable;
  variable.id = node.id();
  variable.source = rowsOf(node, folder);
  variable.domain = node.attribute("domain");
  variable.categorical = node.attribute("categorical") == "true";
  for (const std::string_view name : {"label", "shortLabel", "id"})
    if (variable.title.empty()) variable.title = node.attribute(name);

  variable.format = readFormat(node, folder.manifest.signs, notes);
  const Node* meta = node.child("meta");
  variable.isWeight = meta != nullptr && meta->attribute("weight") == "true";
  const auto table = folder.tables.find(variable.source);
  const Table* rows = table == folder.tables.end() ? nullptr : &table->second;
  variable.constants = constantColumn(node, rows);
  variable.texts = variable.constants ? variable.constants.get() : findColumn(node, rows);
  if (variable.texts == nullptr) return variable;
  if (variable.categorical) {
    variable.categories =
        readCategories(node, *variable.texts, variable.format, folder.manifest.language);
    variable.codes = codesOf(*variable.texts, variable.categories);
  } else {
    variable.numbers = readNumbers(*variable.texts, variable.title, notes);
    variable.valueLabels = readValueLabels(node);
  }
  return variable;
}

} // namespace render
