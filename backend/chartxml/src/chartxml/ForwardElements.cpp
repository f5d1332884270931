// Elements and their aesthetics: each operation looks its chart up and passes on.
#include "Call.h"

int ChartXml::AddElement(int chart, int parent, int type, int suffix) {
  return onChart(chart, &Chart::AddElement, parent, type, suffix);
}
int ChartXml::AddElementGroup(int chart, int frame, int suffix) {
  return onChart(chart, &Chart::AddElementGroup, frame, suffix);
}
int ChartXml::SetElementName(int chart, int element, int name) {
  return onChart(chart, &Chart::SetElementName, element, name);
}
int ChartXml::SetElementDot(int chart, int element, int dot) {
  return onChart(chart, &Chart::SetElementDot, element, dot);
}
int ChartXml::SetElementPositionModifier(int chart, int element, int modifier) {
  return onChart(chart, &Chart::SetElementPositionModifier, element, modifier);
}
int ChartXml::AddStack(int chart, int position, bool stack) {
  return onChart(chart, &Chart::AddStack, position, stack);
}
int ChartXml::AddBinnedElement(int chart, int parent, int type, int suffix, int xVariable,
                               int yVariable) {
  return onChart(chart, &Chart::AddBinnedElement, parent, type, suffix, xVariable, yVariable);
}
int ChartXml::AddPosition(int chart, int element) {
  return onChart(chart, &Chart::AddPosition, element);
}
int ChartXml::AddX(int chart, int parent, int variable) {
  return onChart(chart, &Chart::AddX, parent, variable);
}
int ChartXml::AddY(int chart, int parent, int variable) {
  return onChart(chart, &Chart::AddY, parent, variable);
}
int ChartXml::AddZ(int chart, int parent, int variable) {
  return onChart(chart, &Chart::AddZ, parent, variable);
}
int ChartXml::AddR(int chart, int parent, int variable) {
  return onChart(chart, &Chart::AddR, parent, variable);
}
int ChartXml::AddTheta(int chart, int parent, int variable) {
  return onChart(chart, &Chart::AddTheta, parent, variable);
}
int ChartXml::AddPhi(int chart, int parent, int variable) {
  return onChart(chart, &Chart::AddPhi, parent, variable);
}
int ChartXml::AddColor(int chart, int element, int variable) {
  return onChart(chart, &Chart::AddColor, element, variable);
}
int ChartXml::AddSize(int chart, int elementOrLabeling, int variable) {
  return onChart(chart, &Chart::AddSize, elementOrLabeling, variable);
}
int ChartXml::SetSizeLow(int chart, int size, int low) {
  return onChart(chart, &Chart::SetSizeLow, size, low);
}
int ChartXml::SetSizeHigh(int chart, int size, int high) {
  return onChart(chart, &Chart::SetSizeHigh, size, high);
}
int ChartXml::AddStyleBy(int chart, int element, int variable) {
  return onChart(chart, &Chart::AddStyleBy, element, variable);
}
int ChartXml::AddStyleByColor(int chart, int element, int variable) {
  return onChart(chart, &Chart::AddStyleByColor, element, variable);
}
int ChartXml::AddStyleByPattern(int chart, int element, int variable) {
  return onChart(chart, &Chart::AddStyleByPattern, element, variable);
}
int ChartXml::AddStyleByColorAndPattern(int chart, int element, int variable) {
  return onChart(chart, &Chart::AddStyleByColorAndPattern, element, variable);
}
int ChartXml::AddSplit(int chart, int element, int variable) {
  return onChart(chart, &Chart::AddSplit, element, variable);
}
int ChartXml::AddLabeling(int chart, int element, int variable) {
  return onChart(chart, &Chart::AddLabeling, element, variable);
}
int ChartXml::AddLabelingSuffix(int chart, int element, int variable, int suffix) {
  return onChart(chart, &Chart::AddLabelingSuffix, element, variable, suffix);
}
int ChartXml::AddStatistic(int chart, int parent, int method) {
  return onChart(chart, &Chart::AddStatistic, parent, method);
}
int ChartXml::AddParam(int chart, int statistic, int name, int value) {
  return onChart(chart, &Chart::AddParam, statistic, name, value);
}
int ChartXml::AddLabel(int chart, int parent, int suffix, int content) {
  return onChart(chart, &Chart::AddLabel, parent, suffix, content);
}
