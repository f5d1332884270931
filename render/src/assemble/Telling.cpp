#include "assemble/Telling.h"

#include <algorithm>

#include "text/PlainValue.h"

namespace render {

std::string Telling::number(double value) const {
  return roundedText(value, chart.folder->manifest.signs);
}

std::string Telling::value(const Variable* variable, double value) const {
  if (variable == nullptr) return number(value);
  return PlainValue(variable->format, chart.folder->manifest)(value);
}

std::string Telling::label(const Variable& variable, const Category& category) const {
  // Vega computes the text of a value with a format.
  return category.expression.empty() ? category.label : value(&variable, numberOf(category.key));
}

std::string listed(const std::vector<std::string>& texts) {
  const bool haveCommas = std::ranges::any_of(
      texts, [](const std::string& text) { return text.find(',') != text.npos; });
  std::string list;
  std::size_t count = 0;
  for (const std::string& text : texts) {
    if (text.find_first_not_of(' ') == text.npos) continue;
    if (!list.empty()) list += haveCommas ? "; " : ", ";
    if (count++ == mostListed) return list + "...";
    list += text;
  }
  return list;
}

std::vector<double> drawnValues(const Element& element, const Variable& variable) {
  std::vector<double> values;
  const auto add = [&](const Variable& one) {
    for (std::size_t row = 0; row < one.numbers.size(); ++row)
      if (element.draws(row)) values.push_back(one.numbers[row]);
  };
  if (variable.members.empty()) add(variable);
  for (const Variable* member : variable.members)
    add(*member);
  return values;
}

} // namespace render
