// What is computed of an element's variables, and what a procedure says it computed.
#include <chartxml/Chart.h>

#include <iterator>

#include "Nodes.h"
#include "Placement.h"
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr int allDigits = 16;

// A description of this number alone takes a summary yet.
constexpr const XMLCh* undescribed = u"31";

/// A summary of a variable: what the output calls it, with so many values.
struct Summary {
  const XMLCh* name; ///< null: no summary
  int values;
};

constexpr int firstSummary = -1;
constexpr Summary summaries[] = {{u"customStatistic", 0},
                                 {nullptr, 0},
                                 {u"numberOfCases", 0},
                                 {nullptr, 0},
                                 {u"minimumValue", 0},
                                 {u"maximumValue", 0},
                                 {u"validN", 0},
                                 {u"sumOfValues", 0},
                                 {u"cumulativeSum", 0},
                                 {u"meanOfValues", 0},
                                 {u"standardDeviation", 0},
                                 {u"variance", 0},
                                 {u"medianOfValues", 0},
                                 {u"modeOfValues", 0},
                                 {u"percentageOfCases", 0},
                                 {u"cumulativePercentageOfCases", 0},
                                 {u"numberOfCases", 0},
                                 {u"cumulativeNumberOfCases", 0},
                                 {u"percentile", 1},
                                 {u"percentageBelow", 1},
                                 {u"percentageAbove", 1},
                                 {u"numberBelow", 1},
                                 {u"numberAbove", 1},
                                 {u"percentageInside", 2},
                                 {u"numberInside", 2},
                                 {nullptr, 0},
                                 {u"gMedian", 1},
                                 {u"gPtile", 1}};
constexpr int lastSummary = firstSummary + static_cast<int>(std::size(summaries)) - 1;

Summary summaryOf(int code) {
  return code < firstSummary || code > lastSummary ? Summary{} : summaries[code - firstSummary];
}

} // namespace

int Chart::AddStatistic(int parent, int method) {
  const Where here = Where::current();
  if (!validHandle(parent, "parent") || !validString(method, "method", here)) return -1;
  DOMElement* target = getElement(parent);
  if (!target) return -1;
  DOMElement& statistic = makeElement(ZephUni::_statistic);
  setText(statistic, ZephUni::_method, method);
  if (hasValue(statistic, ZephUni::_method, _histogram)) {
    DOMElement& shared = appendElement(statistic, ZephUni::_parameter);
    shared.setAttribute(ZephUni::_name, u"facetsShareSpecification");
    shared.setAttribute(ZephUni::_value, ZephUni::_true);
  }
  return place(*target, statistic, placement::statistic);
}

int Chart::AddParam(int statistic, int name, int value) {
  const Where here = Where::current();
  if (!validHandle(statistic, "statistic") || !validString(name, "name", here) ||
      !validString(value, "value", here)) {
    return -1;
  }
  DOMElement* target = getElement(statistic);
  if (!target) return -1;
  DOMElement& parameter = makeElement(ZephUni::_parameter);
  setText(parameter, ZephUni::_name, name);
  setText(parameter, ZephUni::_value, value);
  return append(*target, parameter);
}

int Chart::AddBinnedElement(int parent, int type, int suffix, int xVariable, int yVariable) {
  const Where here = Where::current();
  if (!validHandle(parent, "frame or elementGroup") || !validString(type, "type", here) ||
      !validOptionalString(suffix, "suffix", here) || !validHandle(xVariable, "x-variable") ||
      !validHandle(yVariable, "y-variable")) {
    return -1;
  }
  const auto word = [this](const XMLCh* text) {
    return stringHandler_->AddChartString(ChartString(text));
  };
  const int bin = word(_bin);
  const int location = word(ZephUni::_location);
  const int grid = word(_grid);
  const int hex = word(_hex);
  word(ZephUni::_both); // no step takes it, but later handles are counted with it
  const int high = word(_binhighval);
  const int low = word(_binlowval);
  const int count = word(ZephUni::_count);

  int element = -1, position = -1, statistic = -1, size = -1, last = -1;
  const auto done = [&last](int result) { return (last = result) >= 0; };
  // The bins' shape goes by the grid's name.
  const bool whole =
      done(element = AddElement(parent, type, suffix)) && done(position = AddPosition(element)) &&
      done(statistic = AddStatistic(position, bin)) && done(AddParam(statistic, location, grid)) &&
      done(AddParam(statistic, grid, hex)) && done(AddX(position, xVariable)) &&
      done(AddY(position, yVariable)) && done(size = AddSize(element, xVariable)) &&
      done(SetSizeHigh(size, high)) && done(SetSizeLow(size, low)) &&
      done(AddStatistic(size, count));
  return whole ? element : last;
}

int Chart::SetSummaryFunction(int variable, int code, double first, double second) {
  if (!validHandle(variable, "variable")) return -1;
  DOMElement* target = getElement(variable);
  if (!target) return -1;
  DOMElement& meta = describedMeta(*target);
  std::u16string description = meta.getAttribute(ZephUni::_description);
  if (!description.empty() && description != undescribed) return code;
  const auto [name, values] = summaryOf(code);
  if (!name) return -1;

  description += name;
  const double given[] = {first, second};
  for (int i = 0; i < values; ++i) {
    ChartString number;
    number.assignDouble(given[i], allDigits);
    description += _semicolon;
    description += number.text();
  }
  meta.setAttribute(ZephUni::_description, description.c_str());
  return code;
}
