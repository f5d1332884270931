// Frames, variables, formats: each operation looks its chart up and passes on.
#include "Call.h"

int ChartXml::AddSource(int chart) { return onChart(chart, &Chart::AddSource); }
int ChartXml::AddFrame(int chart, int parent, int suffix) {
  return onChart(chart, &Chart::AddFrame, parent, suffix);
}
int ChartXml::SetFrameClipping(int chart, int frame, bool clip) {
  return onChart(chart, &Chart::SetFrameClipping, frame, clip);
}
int ChartXml::SetChartType(int chart, int type) {
  return onChart(chart, &Chart::SetChartType, type);
}
int ChartXml::SetChartTemplate(int chart, const std::string& name) {
  return onChart(chart, &Chart::SetChartTemplate, name);
}
int ChartXml::CreateChartDescription(int chart, int string) {
  return onChart(chart, &Chart::CreateChartDescription, string);
}
int ChartXml::AddVariable(int chart, int source, int variable, bool categorical) {
  return onChart(chart, &Chart::AddVariable, source, Column{*this, variable}, categorical);
}
int ChartXml::AddAggregate(int chart, int source, int name, bool categorical, int label,
                           int shortLabel, int domain) {
  return onChart(chart, &Chart::AddAggregate, source, name, categorical, label, shortLabel, domain);
}
int ChartXml::AddWeightAggregate(int chart, int source, int name, int label) {
  return onChart(chart, &Chart::AddWeightAggregate, source, name, label);
}
int ChartXml::AddRelabel(int chart, int variable, int from, int to) {
  return onChart(chart, &Chart::AddRelabel, variable, from, to);
}
int ChartXml::AddRelabels(int chart, int node, int variable) {
  return onChart(chart, &Chart::AddRelabels, node, Column{*this, variable});
}
int ChartXml::GetVariableFormat(int chart, int variable) {
  return onChart(chart, &Chart::GetVariableFormat, Column{*this, variable});
}

int ChartXml::SetVariableFormat(int chart, int variable, long packed) {
  return onChart(chart, &Chart::SetVariableFormat, variable, packed);
}
int ChartXml::AddMeta(int chart, int variable) {
  return onChart(chart, static_cast<int (Chart::*)(int)>(&Chart::AddMeta), variable);
}
int ChartXml::AddFormat(int chart, int meta, int column) {
  return onChart(chart, &Chart::AddFormat, meta, column);
}
int ChartXml::SetMetaWeight(int chart, int meta, bool weight) {
  return onChart(chart, &Chart::SetMetaWeight, meta, weight);
}
int ChartXml::getVariableNumFormat(int chart, int variable) {
  return onChart(chart, &Chart::getVariableNumFormat, variable);
}
int ChartXml::AddStringFormat(int chart, int meta) {
  return onChart(chart, &Chart::AddStringFormat, meta);
}
int ChartXml::AddDateFormat(int chart, int meta, int type, int width) {
  return onChart(chart, &Chart::AddDateFormat, meta, type, width);
}
int ChartXml::AddNumberFormat(int chart, int meta, int type, int width, int decimals) {
  return onChart(chart, static_cast<int (Chart::*)(int, int, int, int)>(&Chart::AddNumberFormat),
                 meta, type, width, decimals);
}
int ChartXml::AddNumberFormat(int chart, int parent) {
  return onChart(chart, static_cast<int (Chart::*)(int)>(&Chart::AddNumberFormat), parent);
}
int ChartXml::SetNumberFormatMinFractionDigits(int chart, int numberFormat, int digits) {
  return onChart(chart, &Chart::SetNumberFormatMinFractionDigits, numberFormat, digits);
}
int ChartXml::SetNumberFormatMaxFractionDigits(int chart, int numberFormat, int string) {
  return onChart(chart, &Chart::SetNumberFormatMaxFractionDigits, numberFormat, string);
}
int ChartXml::SetNumberFormatPrefix(int chart, int numberFormat, int string) {
  return onChart(chart, &Chart::SetNumberFormatPrefix, numberFormat, string);
}
int ChartXml::SetNumberFormatSuffix(int chart, int numberFormat, int string) {
  return onChart(chart, &Chart::SetNumberFormatSuffix, numberFormat, string);
}
int ChartXml::SetNumberScientific(int chart, int numberFormat, bool on) {
  return onChart(chart, &Chart::SetNumberScientific, numberFormat, on);
}
int ChartXml::SetLogUnsafe(int chart) { return onChart(chart, &Chart::SetLogUnsafe); }
