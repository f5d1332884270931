#pragma once

#include "../CallScope.h"
#include <chartxml/ChartXml.h>

/// A chart handle with the place where it was handed over: inside a forwarding
/// operation that is the operation's own line, which reports then name.
struct ChartXml::At {
  At(int chart, Where place = Where::current()) : handle(chart), where(place) {}

  int handle;
  Where where;
};

/// A variable number of the procedure where Chart takes a column. It is mapped when the
/// chart's operation is called, so that a bad chart is the only thing reported of a call.
struct ChartXml::Column {
  operator int() const { return registry.getVariableIndex(variable); }

  const ChartXml& registry;
  int variable;
};

/// The course of every forwarding operation: look the chart up, -1 when there is
/// none, else its operation.
template <class Result, class... Parameters, class... Arguments> int
ChartXml::onChart(At chart, Result (Chart::*operation)(Parameters...), Arguments&&... arguments) {
  const CallScope running(chart.where.function_name());
  Chart* found = findChart(chart);
  return found ? (found->*operation)(std::forward<Arguments>(arguments)...) : -1;
}

template <class... Parameters, class... Arguments>
int ChartXml::onChart(At chart, int (Chart::*operation)(Parameters...) const,
                      Arguments&&... arguments) {
  const CallScope running(chart.where.function_name());
  const Chart* found = findChart(chart);
  return found ? (found->*operation)(std::forward<Arguments>(arguments)...) : -1;
}
