// Texts among the numbers of a continuous variable.
#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "check/Check.h"
#include "check/UsedVariables.h"
#include "text/Show.h"

namespace render {
namespace {

/// "NaN" is what a value that is no number is written as, and not a text.
bool isStray(std::string_view text) {
  return !text.empty() && text != "NaN" && std::isnan(numberOf(text));
}

void checkTexts(const Variable& variable, Report& report) {
  const Column& texts = *variable.texts;
  std::size_t count = 0;
  std::size_t first = 0;
  for (std::size_t row = 0; row < texts.size(); ++row) {
    if (!std::isnan(variable.numbers[row]) || !isStray(texts[row])) continue;
    if (count++ == 0) first = row;
  }
  const auto isMissing = [](double value) { return std::isnan(value); };
  const bool hasNone = std::ranges::all_of(variable.numbers, isMissing); // told as empty
  if (count == 0 || hasNone) return;
  report.add(variable,
             fmt::format("{} is drawn along numbers, and {} of its values in {} rows {} none, the "
                         "first \"{}\" in row {}; load numbers, or make it categorical",
                         called(variable), count, texts.size(), count == 1 ? "is" : "are",
                         shown(texts[first]), first + 1));
}

} // namespace

void checkStrayTexts(const Chart& chart, Report& report) {
  for (const Variable* variable : usedVariables(chart))
    if (variable->texts != nullptr && !variable->categorical && !variable->numbers.empty())
      checkTexts(*variable, report);
}

} // namespace render
