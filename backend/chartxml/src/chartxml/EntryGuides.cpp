// Axes, guides and legends.
#include "EntryCall.h"

#include <chartxml/EntryPoints.h>

using namespace entry;

int64_t cx_addaxis_(const int64_t* chart, const int64_t* parent, const int64_t* suffix,
                    const int64_t* opposite) {
  return call(__func__, &ChartXml::AddAxis, chart, parent, suffix, opposite);
}
int64_t cx_addmajorticks_(const int64_t* chart, const int64_t* parent, const int64_t* position,
                          const int64_t* gridLines, const int64_t* length,
                          const int64_t* labelAngle, const int64_t* stagger, const int64_t* delta) {
  return call(__func__, &ChartXml::AddMajorTicks, chart, parent, position, gridLines, length,
              labelAngle, stagger, delta);
}
int64_t cx_setaxispercent_(const int64_t* chart, const int64_t* node, const int64_t* formatParent) {
  return call(__func__, &ChartXml::SetAxisPercent, chart, node, formatParent);
}
int64_t cx_addguide_(const int64_t* chart, const int64_t* frame, const int64_t* type,
                     const int64_t* suffix) {
  return call(__func__, &ChartXml::AddGuide, chart, frame, type, suffix);
}
int64_t cx_addyfunctionofx_(const int64_t* chart, const int64_t* frame, const int64_t* function,
                            const int64_t* styleIndex) {
  return call(__func__, &ChartXml::AddYFunctionOfX, chart, frame, function, styleIndex);
}
int64_t cx_addlegend_(const int64_t* chart, const int64_t* frame, const int64_t* suffix) {
  return call(__func__, &ChartXml::AddLegend, chart, frame, suffix);
}
int64_t cx_setdisplayoverlappinglabels_(const int64_t* chart, const int64_t* element,
                                        const int64_t* display) {
  return call(__func__, &ChartXml::SetDisplayOverlappingLabels, chart, element, display);
}
int64_t cx_setlabelcollisionhandling_(const int64_t* chart, const int64_t* element,
                                      const int64_t* handling) {
  return call(__func__, &ChartXml::SetLabelCollisionHandling, chart, element, handling);
}
int64_t cx_addminorticks_(const int64_t* chart, const int64_t* parent, const int64_t* position,
                          const int64_t* gridLines, const int64_t* length,
                          const int64_t* tickCount) {
  return call(__func__, &ChartXml::AddMinorTicks, chart, parent, position, gridLines, length,
              tickCount);
}
int64_t cx_addxreferenceline_(const int64_t* chart, const int64_t* frame,
                              const int64_t* valueString, const int64_t* guideStyle) {
  return call(__func__, &ChartXml::AddXReferenceLine, chart, frame, valueString, guideStyle);
}
int64_t cx_addyreferenceline_(const int64_t* chart, const int64_t* frame,
                              const int64_t* valueString, const int64_t* guideStyle) {
  return call(__func__, &ChartXml::AddYReferenceLine, chart, frame, valueString, guideStyle);
}
int64_t cx_addlegendtargetex_(const int64_t* chart, const int64_t* parent, const int64_t* target,
                              const int64_t* styleBy, const int64_t* suffix) {
  return call(__func__, &ChartXml::AddLegendTargetEx, chart, parent, target, styleBy, suffix);
}
