// Fitted curves: a model's formula with its coefficients, as a function guide.
#include "Call.h"

#include <initializer_list>
#include <limits>

/// A model's formula over numbers and over dates, which count from day 0 of the
/// date scale, and the string-table key of its name. "^n" is the n-th coefficient.
struct ChartXml::FitModel {
  const char* plain;
  const char* overDates;
  const char* nameKey;

  static const FitModel linear, logarithmic, inverse, quadratic, cubic, compound, power, sCurve,
      growth, exponential, logistic;
};

/// What a curve is drawn from beside its model and its coefficients.
struct ChartXml::FitLine {
  At chart;
  int parent;
  int functionArgument;
  bool dateScale;
};

// What reads the formulas knows them to the last blank.
constexpr ChartXml::FitModel ChartXml::FitModel::linear{
    "^2 * x + ^1", "^2 * (x - datetodouble(\"1582-10-14T00:00:00.000\") ) + ^1", "E60551"};
constexpr ChartXml::FitModel ChartXml::FitModel::logarithmic{
    "^1 + ^2 * log(x)", "^1 + ^2 * log(x - datetodouble(\"1582-10-14T00:00:00.000\"))", "E60552"};
constexpr ChartXml::FitModel ChartXml::FitModel::inverse{
    "^1 + ^2 / x", "^1 + ^2 / (x - datetodouble(\"1582-10-14T00:00:00.000\") )", "E60553"};
constexpr ChartXml::FitModel ChartXml::FitModel::quadratic{
    "^1 + ^2 * x + ^3 * x*x",
    "^1 + ^2 * (x - datetodouble(\"1582-10-14T00:00:00.000\") ) + ^3 * (x - "
    "datetodouble(\"1582-10-14T00:00:00.000\") )*(x - "
    "datetodouble(\"1582-10-14T00:00:00.000\") )",
    "E60554"};
constexpr ChartXml::FitModel ChartXml::FitModel::cubic{
    "^1 + ^2 * x + ^3 * x*x + ^4 * x*x*x",
    "^1 + ^2 * (x - datetodouble(\"1582-10-14T00:00:00.000\")) + ^3 * (x - "
    "datetodouble(\"1582-10-14T00:00:00.000\"))*(x - "
    "datetodouble(\"1582-10-14T00:00:00.000\")) + ^4 * (x - "
    "datetodouble(\"1582-10-14T00:00:00.000\"))*(x - "
    "datetodouble(\"1582-10-14T00:00:00.000\"))*(x - "
    "datetodouble(\"1582-10-14T00:00:00.000\") )",
    "E60555"};
constexpr ChartXml::FitModel ChartXml::FitModel::compound{
    "^1 * ^2**x", "^1 * ^2**(x - datetodouble(\"1582-10-14T00:00:00.000\") )", "E60556"};
constexpr ChartXml::FitModel ChartXml::FitModel::power{
    "^1 * x**^2", "^1 * (x - datetodouble(\"1582-10-14T00:00:00.000\") )**^2", "E60557"};
constexpr ChartXml::FitModel ChartXml::FitModel::sCurve{
    "exp( ^1 + ^2 / x )", "exp( ^1 + ^2 / (x - datetodouble(\"1582-10-14T00:00:00.000\") ) )",
    "E60558"};
constexpr ChartXml::FitModel ChartXml::FitModel::growth{
    "exp( ^1 + ^2 * x )", "exp( ^1 + ^2 * (x - datetodouble(\"1582-10-14T00:00:00.000\") ) )",
    "E60559"};
constexpr ChartXml::FitModel ChartXml::FitModel::exponential{
    "^1 * exp( ^2 * x )", "^1 * exp( ^2 * (x  - datetodouble(\"1582-10-14T00:00:00.000\") ) )",
    "E60560"};
constexpr ChartXml::FitModel ChartXml::FitModel::logistic{
    "1 / ( ^3 + ^1 * ^2**x )",
    "1 / ( ^3 + ^1 * ^2**(x - datetodouble(\"1582-10-14T00:00:00.000\") ) )", "E60561"};

int ChartXml::AddYOfXLinear(int chart, int parent, int functionArgument, const double& b1,
                            const double& b2, bool dateScale) {
  return addLineOfTwo(FitModel::linear, {chart, parent, functionArgument, dateScale}, b1, b2);
}
int ChartXml::AddYOfXLogarithmic(int chart, int parent, int functionArgument, const double& b1,
                                 const double& b2, bool dateScale) {
  return addLineOfTwo(FitModel::logarithmic, {chart, parent, functionArgument, dateScale}, b1, b2);
}
int ChartXml::AddYOfXInverse(int chart, int parent, int functionArgument, const double& b1,
                             const double& b2, bool dateScale) {
  return addLineOfTwo(FitModel::inverse, {chart, parent, functionArgument, dateScale}, b1, b2);
}
int ChartXml::AddYOfXQuadratic(int chart, int parent, int functionArgument, const double& b1,
                               const double& b2, const double& b3, bool dateScale) {
  return addLine(FitModel::quadratic, {chart, parent, functionArgument, dateScale}, {b1, b2, b3});
}
int ChartXml::AddYOfXCubic(int chart, int parent, int functionArgument, const double& b1,
                           const double& b2, const double& b3, const double& b4, bool dateScale) {
  return addLine(FitModel::cubic, {chart, parent, functionArgument, dateScale}, {b1, b2, b3, b4});
}
int ChartXml::AddYOfXCompound(int chart, int parent, int functionArgument, const double& b1,
                              const double& b2, bool dateScale) {
  return addLineOfTwo(FitModel::compound, {chart, parent, functionArgument, dateScale}, b1, b2);
}
int ChartXml::AddYOfXPower(int chart, int parent, int functionArgument, const double& b1,
                           const double& b2, bool dateScale) {
  return addLineOfTwo(FitModel::power, {chart, parent, functionArgument, dateScale}, b1, b2);
}
int ChartXml::AddYOfXS(int chart, int parent, int functionArgument, const double& b1,
                       const double& b2, bool dateScale) {
  return addLineOfTwo(FitModel::sCurve, {chart, parent, functionArgument, dateScale}, b1, b2);
}
int ChartXml::AddYOfXGrowth(int chart, int parent, int functionArgument, const double& b1,
                            const double& b2, bool dateScale) {
  return addLineOfTwo(FitModel::growth, {chart, parent, functionArgument, dateScale}, b1, b2);
}
int ChartXml::AddYOfXExponential(int chart, int parent, int functionArgument, const double& b1,
                                 const double& b2, bool dateScale) {
  return addLineOfTwo(FitModel::exponential, {chart, parent, functionArgument, dateScale}, b1, b2);
}
int ChartXml::AddYOfXLogistic(int chart, int parent, int functionArgument, const double& b1,
                              const double& b2, const double& b3, bool dateScale) {
  return addLine(FitModel::logistic, {chart, parent, functionArgument, dateScale}, {b1, b2, b3});
}

int ChartXml::AddYOfXWithAB(int chart, int parent, int formula, int functionArgument,
                            const double& b1, const double& b2) {
  const CallScope running(Where::current().function_name());
  Chart* found = findChart(chart);
  if (!found) return -1;
  if (formula < 0) return formula;
  const int filled = fillFormula(formula, {b1, b2});
  if (filled < 0) return filled;
  // The formula stays in the string table: only the curve is refused.
  constexpr double infinity = std::numeric_limits<double>::infinity();
  if (b1 == infinity || b2 == infinity) return -1;
  return found->AddYFunctionOfX(parent, formula, functionArgument);
}

int ChartXml::addLineOfTwo(const FitModel& model, const FitLine& line, const double& b1,
                           const double& b2) {
  const CallScope running(line.chart.where.function_name());
  if (!findChart(line.chart)) return -1;
  const int chart = line.chart.handle;
  const int formula = CompositeString(line.dateScale ? model.overDates : model.plain);
  if (formula < 0) return formula;
  const int curve = AddYOfXWithAB(chart, line.parent, formula, line.functionArgument, b1, b2);
  if (curve != -1) SetElementName(chart, curve, NString(model.nameKey));
  return curve;
}

// Unlike a line of two coefficients: none is looked at, and a curve that could not be
// added is named all the same, which reports that it is missing.
int ChartXml::addLine(const FitModel& model, const FitLine& line,
                      std::initializer_list<double> coefficients) {
  const CallScope running(line.chart.where.function_name());
  if (!findChart(line.chart)) return -1;
  const int chart = line.chart.handle;
  const int formula = CompositeString(line.dateScale ? model.overDates : model.plain);
  if (formula < 0) return formula;
  const int filled = fillFormula(formula, coefficients);
  if (filled < 0) return filled;
  const int curve = AddYFunctionOfX(chart, line.parent, formula, line.functionArgument);
  SetElementName(chart, curve, NString(model.nameKey));
  return curve;
}

int ChartXml::fillFormula(int formula, std::initializer_list<double> coefficients) {
  for (const double coefficient : coefficients) {
    const int added = AddParameter(formula, LRValue(coefficient, -1));
    if (added < 0) return added;
  }
  return EndCompositeString(formula);
}
