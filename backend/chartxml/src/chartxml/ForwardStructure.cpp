// Frames, variables, formats, dimensions, guides: each operation looks its chart up
// and passes on.
#include "Call.h"

int ChartXml::AddSource(int chart) { return onChart(chart, &Chart::AddSource); }
int ChartXml::AddFrame(int chart, int parent, int suffix) {
  return onChart(chart, &Chart::AddFrame, parent, suffix);
}
int ChartXml::SetFrameClipping(int chart, int frame, bool clip) {
  return onChart(chart, &Chart::SetFrameClipping, frame, clip);
}
int ChartXml::AddFacetLabeling(int chart, int frame) {
  return onChart(chart, &Chart::AddFacetLabeling, frame);
}
int ChartXml::AddFacetLabel(int chart, int facetLabeling, int suffix, int level, bool reverse) {
  return onChart(chart, &Chart::AddFacetLabel, facetLabeling, suffix, level, reverse);
}
int ChartXml::SetFacetLabelCellStyle(int chart, int facetLabel, int suffix) {
  return onChart(chart, &Chart::SetFacetLabelCellStyle, facetLabel, suffix);
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
  return onChart(chart, &Chart::AddVariable, source, getVariableIndex(variable), categorical);
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
  return onChart(chart, &Chart::AddRelabels, node, getVariableIndex(variable));
}
int ChartXml::GetVariableFormat(int chart, int variable) {
  return onChart(chart, &Chart::GetVariableFormat, getVariableIndex(variable));
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

int ChartXml::AddDimension(int chart, int frame, int role, int domain) {
  return onChart(chart, &Chart::AddDimension, frame, role, domain);
}
int ChartXml::GetDimension(int chart, int frame, int role) {
  return onChart(chart, &Chart::GetDimension, frame, role);
}
int ChartXml::SetDimensionLowerMargin(int chart, int dimension, int margin) {
  return onChart(chart, &Chart::SetDimensionLowerMargin, dimension, margin);
}
int ChartXml::SetDimensionUpperMargin(int chart, int dimension, int margin) {
  return onChart(chart, &Chart::SetDimensionUpperMargin, dimension, margin);
}
int ChartXml::SetDimensionLowerMapping(int chart, int dimension, int mapping) {
  return onChart(chart, &Chart::SetDimensionLowerMapping, dimension, mapping);
}
int ChartXml::SetDimensionUpperMapping(int chart, int dimension, int mapping) {
  return onChart(chart, &Chart::SetDimensionUpperMapping, dimension, mapping);
}
int ChartXml::AddAxis(int chart, int parent, int suffix, bool opposite) {
  return onChart(chart, &Chart::AddAxis, parent, suffix, opposite);
}
int ChartXml::AddMajorTicks(int chart, int parent, int position, bool gridLines, int length,
                            int labelAngle, bool stagger, int delta) {
  return onChart(chart, &Chart::AddMajorTicks, parent, position, gridLines, length, labelAngle,
                 stagger, delta);
}
int ChartXml::AddGuide(int chart, int frame, int type, int suffix) {
  return onChart(chart, &Chart::AddGuide, frame, type, suffix);
}
int ChartXml::AddYFunctionOfX(int chart, int frame, int function, int styleIndex) {
  return onChart(chart, &Chart::AddYFunctionOfX, frame, function, styleIndex);
}
int ChartXml::AddLegend(int chart, int frame, int suffix) {
  return onChart(chart, &Chart::AddLegend, frame, suffix);
}
int ChartXml::AddLegendTarget(int chart, int legend, int elementOrGuide, int suffix,
                              int aesthetic) {
  return onChart(chart, &Chart::AddLegendTarget, legend, elementOrGuide, suffix, aesthetic);
}
int ChartXml::AddTransform(int chart, int parent, int method) {
  return onChart(chart, &Chart::AddTransform, parent, method);
}
int ChartXml::SetLogUnsafe(int chart) { return onChart(chart, &Chart::SetLogUnsafe); }
