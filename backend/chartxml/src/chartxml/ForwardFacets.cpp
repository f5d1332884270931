// Facets and coordinates: each operation looks its chart up and passes on.
#include "Call.h"

int ChartXml::AddTableFacet(int chart, int frame) {
  return onChart(chart, &Chart::AddTableFacet, frame);
}
int ChartXml::AddFacetLabeling(int chart, int frame) {
  return onChart(chart, &Chart::AddFacetLabeling, frame);
}
int ChartXml::AddCoordinateFacet(int chart, int frame) {
  return onChart(chart, &Chart::AddCoordinateFacet, frame);
}
int ChartXml::AddNest(int chart, int parent) { return onChart(chart, &Chart::AddNest, parent); }
int ChartXml::AddBlend(int chart, int parent) { return onChart(chart, &Chart::AddBlend, parent); }
int ChartXml::AddCross(int chart, int parent) { return onChart(chart, &Chart::AddCross, parent); }
int ChartXml::AddFacetVariable(int chart, int parent, int role, int variable) {
  return onChart(chart, &Chart::AddFacetVariable, parent, role, variable);
}
int ChartXml::AddFacetLabel(int chart, int facetLabeling, int suffix, int level, bool reverse) {
  return onChart(chart, &Chart::AddFacetLabel, facetLabeling, suffix, level, reverse);
}
int ChartXml::GetFacetLabel(int chart, int facetLabeling, int level) {
  return onChart(chart, &Chart::GetFacetLabel, facetLabeling, level);
}
int ChartXml::SetFacetLabelLevel(int chart, int facetLabel, int level) {
  return onChart(chart, &Chart::SetFacetLabelLevel, facetLabel, level);
}
int ChartXml::SetFacetLabelGap(int chart, int facetLabel, int gap) {
  return onChart(chart, &Chart::SetFacetLabelGap, facetLabel, gap);
}
int ChartXml::SetFacetLabelCellStyle(int chart, int facetLabel, int suffix) {
  return onChart(chart, &Chart::SetFacetLabelCellStyle, facetLabel, suffix);
}
int ChartXml::SetFacetLabelingCellAspect(int chart, int facetLabeling, double aspect) {
  return onChart(chart, &Chart::SetFacetLabelingCellAspect, facetLabeling, aspect);
}
int ChartXml::AddFacetStyle(int chart, int elementOrGridLines, int when, int suffix) {
  return onChart(chart, &Chart::AddFacetStyle, elementOrGridLines, when, suffix);
}
int ChartXml::AddCoordinateTransform(int chart, int frame, int method) {
  return onChart(chart, &Chart::AddCoordinateTransform, frame, method);
}
