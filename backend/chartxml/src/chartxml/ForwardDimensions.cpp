// Dimensions and domains: each operation looks its chart up and passes on.
#include "Call.h"

int ChartXml::AddDimension(int chart, int frame, int role, int domain) {
  return onChart(chart, &Chart::AddDimension, frame, role, domain);
}
int ChartXml::GetDimension(int chart, int frame, int role) {
  return onChart(chart, &Chart::GetDimension, frame, role);
}
int ChartXml::SetDimensionDomain(int chart, int dimension, int domain) {
  return onChart(chart, &Chart::SetDimensionDomain, dimension, domain);
}
int ChartXml::SetDimensionScale(int chart, int dimension, int method, int value, bool invert) {
  return onChart(chart, &Chart::SetDimensionScale, dimension, method, value, invert);
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
int ChartXml::SetUnionDomain(int chart, int dimension) {
  return onChart(chart, &Chart::SetUnionDomain, dimension);
}
int ChartXml::SetFacetsDifferentScale(int chart, int dimension) {
  return onChart(chart, &Chart::SetFacetsDifferentScale, dimension);
}
int ChartXml::SetDimensionSameRatio(int chart, int dimension, bool same) {
  return onChart(chart, &Chart::SetDimensionSameRatio, dimension, same);
}
int ChartXml::SetBinWidth(int chart, double width) {
  return onChart(chart, &Chart::SetBinWidth, width);
}
int ChartXml::SetXYDimensionSameScale(int chart, double extent) {
  return onChart(chart, &Chart::SetXYDimensionSameScale, extent);
}
int ChartXml::AddDomain(int chart, bool categorical) {
  return onChart(chart, &Chart::AddDomain, categorical);
}
int ChartXml::AddInterval(int chart, int domain, int min, int max) {
  return onChart(chart, &Chart::AddInterval, domain, min, max);
}
int ChartXml::AddIntervalEx(int chart, int domain, int min, int max) {
  return onChart(chart, &Chart::AddInterval, domain, min, max);
}
int ChartXml::AddDomainReference(int chart, int domain, int domainOrVariable) {
  return onChart(chart, &Chart::AddDomainReference, domain, domainOrVariable);
}
int ChartXml::SetDomainDescending(int chart, int domain, bool descending) {
  return onChart(chart, &Chart::SetDomainDescending, domain, descending);
}
int ChartXml::AddSort(int chart, int domain) { return onChart(chart, &Chart::AddSort, domain); }
int ChartXml::AddSimpleSort(int chart, int sort) {
  return onChart(chart, &Chart::AddSimpleSort, sort);
}
int ChartXml::SetSimpleSortMethod(int chart, int simpleSort, int method) {
  return onChart(chart, &Chart::SetSimpleSortMethod, simpleSort, method);
}
int ChartXml::AddStatisticSort(int chart, int sort, int sourceVariable, int statVariable) {
  return onChart(chart, &Chart::AddStatisticSort, sort, sourceVariable, statVariable);
}
int ChartXml::SetSortDescending(int chart, int sort, bool descending) {
  return onChart(chart, &Chart::SetSortDescending, sort, descending);
}
