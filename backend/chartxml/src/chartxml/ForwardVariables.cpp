// Variables, their lists and summaries: each operation looks its chart up and passes on.
#include "Call.h"

int ChartXml::AddLabelingVariable(int chart, int source, int variable, bool categorical) {
  return onChart(chart, &Chart::AddLabelingVariable, source, Column{*this, variable}, categorical);
}
int ChartXml::AddWeightVariable(int chart, int source, int variable) {
  return onChart(chart, &Chart::AddWeightVariable, source, Column{*this, variable});
}
int ChartXml::SetVariable(int chart, int node, int variable, bool categorical) {
  return onChart(chart, &Chart::SetVariable, node, Column{*this, variable}, categorical);
}
int ChartXml::CopyVariable(int chart, int variable) {
  return onChart(chart, &Chart::CopyVariable, variable);
}
int ChartXml::SetAggregateExternal(int chart, int variable) {
  return onChart(chart, &Chart::SetVariableExternal, variable);
}
int ChartXml::SetVariableLabel(int chart, int variable, int label) {
  return onChart(chart, &Chart::SetVariableLabel, variable, label);
}
int ChartXml::SetVariableName(int chart, int variable, int name) {
  return onChart(chart, &Chart::SetVariableName, variable, name);
}
int ChartXml::SetVariableValue(int chart, int variable, int value) {
  return onChart(chart, &Chart::SetVariableValue, variable, value);
}
int ChartXml::SetVariableCategorical(int chart, int variable, bool categorical) {
  return onChart(chart, &Chart::SetVariableCategorical, variable, categorical);
}
int ChartXml::GetVariableLabel(int chart, int variable) {
  return onChart(chart, &Chart::GetVariableLabel, variable);
}
int ChartXml::AddLabelingAggregate(int chart, int source, int name, bool categorical, int label,
                                   int shortLabel, int domain) {
  return onChart(chart, &Chart::AddLabelingAggregate, source, name, categorical, label, shortLabel,
                 domain);
}
int ChartXml::SetSummaryFunction(int chart, int variable, int code, const double& first,
                                 const double& second) {
  return onChart(chart, &Chart::SetSummaryFunction, variable, code, first, second);
}
int ChartXml::BeginVariableList(int chart) { return onChart(chart, &Chart::BeginVariableList); }
int ChartXml::AddToVariableList(int chart, int list, int variable) {
  return onChart(chart, &Chart::AddToVariableList, list, variable);
}
int ChartXml::AddOverlayVariable(int chart, int list, int role) {
  return onChart(chart, &Chart::AddOverlayVariable, list, role);
}
int ChartXml::AddRangeVariable(int chart, int list) {
  return onChart(chart, &Chart::AddRangeVariable, list);
}
int ChartXml::AddMatrixVariable(int chart, int list) {
  return onChart(chart, &Chart::AddMatrixVariable, list);
}
