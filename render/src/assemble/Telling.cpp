#include "assemble/Telling.h"

#include <algorithm>
#include <cmath>

#include "compute/Sample.h"
#include "text/PlainValue.h"
#include "translate/Style.h"

namespace render {

std::string Telling::number(double value) const {
  return roundedText(value, chart.folder->manifest.signs);
}

std::string Telling::value(const Variable* variable, double value) const {
  if (variable == nullptr) return number(value);
  const auto label = std::ranges::find(variable->valueLabels, value, &ValueLabel::value);
  if (label != variable->valueLabels.end()) return label->label;
  return PlainValue(variable->format,
                    chart.folder->manifest)(isMirrored(variable) ? std::abs(value) : value);
}

std::string Telling::label(const Variable& variable, const Category& category) const {
  // Vega computes the text of a value with a format.
  return category.expression.empty() ? category.label : value(&variable, numberOf(category.key));
}

std::string Telling::range(const std::string& title, const Variable* variable, double low,
                           double high) const {
  if (low == high) return words("Always^2", {title, value(variable, low)});
  const auto* date = variable == nullptr ? nullptr : std::get_if<DateFormat>(&variable->format);
  const bool areDates = date != nullptr && !date->isDuration();
  return words(areDates ? "Dates^3" : "Range^3",
               {title, value(variable, low), value(variable, high)});
}

std::string Telling::span(const Variable* variable, double low, double high) const {
  return words("Span^2", {value(variable, low), value(variable, high)});
}

std::string Telling::pair(std::string_view name, std::string_view text) const {
  return words("Pair^2", {name, text});
}

std::string Telling::withAddition(const std::string& text, const std::string& addition) const {
  return addition.empty() ? text : words("In parentheses^2", {text, addition});
}

std::string Telling::list(const std::vector<std::string>& texts) const {
  const std::string comma = words("Comma");
  const std::string sign = comma.substr(0, comma.find_last_not_of(' ') + 1);
  const bool haveCommas = std::ranges::any_of(texts, [&sign](const std::string& text) {
    return text.find(sign) != text.npos || text.find(", ") != text.npos;
  });
  const std::string between = haveCommas ? words("Semicolon") : comma;
  std::string list;
  std::size_t count = 0;
  for (const std::string& text : texts) {
    if (text.find_first_not_of(' ') == text.npos) continue;
    if (++count > mostListed) continue;
    if (!list.empty()) list += between;
    list += text;
  }
  if (count <= mostListed) return list;
  return words("Longer list^2", {list, number(static_cast<double>(count - mostListed))});
}

bool isMirrored(const Variable* variable) {
  if (variable == nullptr) return false;
  const auto& labels = variable->valueLabels;
  const auto isBelow = [](const ValueLabel& label) { return label.value < 0; };
  const auto hasNoSign = [](const ValueLabel& label) {
    return label.value >= 0 ||
           (!label.label.empty() && label.label.front() >= '0' && label.label.front() <= '9');
  };
  return std::ranges::any_of(labels, isBelow) && std::ranges::all_of(labels, hasNoSign);
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

bool isOfControlChart(const Element& element) {
  return element.node->id().find("controlchart") != std::string_view::npos;
}

bool isOfSurvival(const Element& element) {
  return interpolationOf(*element.node) == "step-after" || isCensored(*element.node);
}

bool isBoxPlot(const Element& element) {
  return element.type() == "schema" ||
         (element.summary != nullptr && element.summary->name.starts_with("tukey"));
}

bool areOnLine(const Element& points, const Chart& chart) {
  return std::ranges::any_of(chart.elements, [&points](const Element& each) {
    return each.isLine() && each.x == points.x && each.y == points.y;
  });
}

} // namespace render
