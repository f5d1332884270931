// Fitted curves: a model's formula with its coefficients, as a function guide.
#include "Call.h"

#include <limits>

namespace {

/// A model's formula over numbers and over dates, which count from day 0 of the
/// date scale, and the string-table key of its name. "^n" is the n-th coefficient.
struct Model {
  const char* plain;
  const char* overDates;
  const char* nameKey;
};

constexpr Model linear{"^2 * x + ^1", "^2 * (x - datetodouble(\"1582-10-14T00:00:00.000\") ) + ^1",
                       "E60551"};

} // namespace

int ChartXml::AddYOfXLinear(int chart, int parent, int functionArgument, const double& b1,
                            const double& b2, bool dateScale) {
  if (!findChart(chart)) return -1;
  const int formula = CompositeString(dateScale ? linear.overDates : linear.plain);
  if (formula < 0) return formula;
  const int element = AddYOfXWithAB(chart, parent, formula, functionArgument, b1, b2);
  if (element != -1) SetElementName(chart, element, NString(linear.nameKey));
  return element;
}

int ChartXml::AddYOfXWithAB(int chart, int parent, int formula, int functionArgument,
                            const double& b1, const double& b2) {
  Chart* found = findChart(chart);
  if (!found) return -1;
  if (formula < 0) return formula;
  for (const double coefficient : {b1, b2}) {
    const int added = AddParameter(formula, LRValue(coefficient, -1));
    if (added < 0) return added;
  }
  const int ended = EndCompositeString(formula);
  if (ended < 0) return ended;
  // The formula stays in the string table: only the curve is refused.
  const double infinity = std::numeric_limits<double>::infinity();
  if (b1 == infinity || b2 == infinity) return -1;
  return found->AddYFunctionOfX(parent, formula, functionArgument);
}
