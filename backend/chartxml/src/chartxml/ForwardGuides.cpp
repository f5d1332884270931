// Axes, guides and legends: each operation looks its chart up and passes on.
#include "Call.h"

namespace {

constexpr int xRole = 1;
constexpr int yRole = 2;

} // namespace

int ChartXml::AddAxis(int chart, int parent, int suffix, bool opposite) {
  return onChart(chart, &Chart::AddAxis, parent, suffix, opposite);
}
int ChartXml::AddMajorTicks(int chart, int parent, int position, bool gridLines, int length,
                            int labelAngle, bool stagger, int delta) {
  return onChart(chart, &Chart::AddMajorTicks, parent, position, gridLines, length, labelAngle,
                 stagger, delta);
}
int ChartXml::AddMinorTicks(int chart, int axis, int position, bool gridLines, int length,
                            int number) {
  return onChart(chart, &Chart::AddMinorTicks, axis, position, gridLines, length, number);
}
int ChartXml::AddTransform(int chart, int parent, int method) {
  return onChart(chart, &Chart::AddTransform, parent, method);
}
int ChartXml::AddGuide(int chart, int frame, int type, int suffix) {
  return onChart(chart, &Chart::AddGuide, frame, type, suffix);
}
int ChartXml::AddReferenceLine(int chart, int frame, int role, int value, int styleIndex) {
  return onChart(chart, &Chart::AddReferenceLine, frame, role, value, styleIndex);
}
int ChartXml::AddXReferenceLine(int chart, int frame, int value, int styleIndex) {
  return onChart(chart, &Chart::AddReferenceLine, frame, xRole, value, styleIndex);
}
int ChartXml::AddYReferenceLine(int chart, int frame, int value, int styleIndex) {
  return onChart(chart, &Chart::AddReferenceLine, frame, yRole, value, styleIndex);
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
int ChartXml::AddLegendTargetEx(int chart, int legend, int elementOrGuide, int styleBy,
                                int suffix) {
  return onChart(chart, &Chart::AddLegendTargetEx, legend, elementOrGuide, styleBy, suffix);
}
int ChartXml::SetDisplayOverlappingLabels(int chart, int element, bool display) {
  return onChart(chart, &Chart::SetDisplayOverlappingLabels, element, display);
}
int ChartXml::SetLabelCollisionHandling(int chart, int element, int handling) {
  return onChart(chart, &Chart::SetLabelCollisionHandling, element, handling);
}
