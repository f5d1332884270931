// Frames and elements.
#include "EntryCall.h"

#include "../StringHandles.h"
#include <chartxml/EntryPoints.h>

using namespace entry;

int64_t cx_addframe_(const int64_t* chart, const int64_t* parent, const int64_t* suffix) {
  return call(__func__, &ChartXml::AddFrame, chart, parent, suffix);
}
int64_t cx_setframeclipping_(const int64_t* chart, const int64_t* frame, const int64_t* clip) {
  return call(__func__, &ChartXml::SetFrameClipping, chart, frame, clip);
}
int64_t cx_addelement_(const int64_t* chart, const int64_t* parent, const int64_t* type,
                       const int64_t* suffix) {
  return call(__func__, &ChartXml::AddElement, chart, parent, type, suffix);
}
int64_t cx_addelementgroup_(const int64_t* chart, const int64_t* frame, const int64_t* suffix) {
  return call(__func__, &ChartXml::AddElementGroup, chart, frame, suffix);
}
int64_t cx_setelementname_(const int64_t* chart, const int64_t* element, const int64_t* name) {
  return call(__func__, &ChartXml::SetElementName, chart, element, name);
}
int64_t cx_setelementdot_(const int64_t* chart, const int64_t* element, const int64_t* dot) {
  return call(__func__, &ChartXml::SetElementDot, chart, element, dot);
}
int64_t cx_setelementpositionmodifier_(const int64_t* chart, const int64_t* element,
                                       const int64_t* modifier) {
  return call(__func__, &ChartXml::SetElementPositionModifier, chart, element, modifier);
}
int64_t cx_addbinnedelement_(const int64_t* chart, const int64_t* parent, const int64_t* type,
                             const int64_t* suffix, const int64_t* x, const int64_t* y) {
  return call(__func__, &ChartXml::AddBinnedElement, chart, parent, type, suffix, x, y);
}
int64_t cx_addposition_(const int64_t* chart, const int64_t* element) {
  return call(__func__, &ChartXml::AddPosition, chart, element);
}
int64_t cx_addx_(const int64_t* chart, const int64_t* parent, const int64_t* variable) {
  return call(__func__, &ChartXml::AddX, chart, parent, variable);
}
int64_t cx_addy_(const int64_t* chart, const int64_t* parent, const int64_t* variable) {
  return call(__func__, &ChartXml::AddY, chart, parent, variable);
}
int64_t cx_addz_(const int64_t* chart, const int64_t* parent, const int64_t* variable) {
  return call(__func__, &ChartXml::AddZ, chart, parent, variable);
}
int64_t cx_addtheta_(const int64_t* chart, const int64_t* parent, const int64_t* variable) {
  return call(__func__, &ChartXml::AddTheta, chart, parent, variable);
}
int64_t cx_addcolor_(const int64_t* chart, const int64_t* element, const int64_t* variable) {
  return call(__func__, &ChartXml::AddColor, chart, element, variable);
}
int64_t cx_addstyleby_(const int64_t* chart, const int64_t* element, const int64_t* variable) {
  return call(__func__, &ChartXml::AddStyleBy, chart, element, variable);
}
int64_t cx_addstylebycolor_(const int64_t* chart, const int64_t* element, const int64_t* variable) {
  return call(__func__, &ChartXml::AddStyleByColor, chart, element, variable);
}
int64_t cx_addstylebypattern_(const int64_t* chart, const int64_t* element,
                              const int64_t* variable) {
  return call(__func__, &ChartXml::AddStyleByPattern, chart, element, variable);
}
int64_t cx_addstylebycolorandpattern_(const int64_t* chart, const int64_t* element,
                                      const int64_t* variable) {
  return call(__func__, &ChartXml::AddStyleByColorAndPattern, chart, element, variable);
}
int64_t cx_addsplit_(const int64_t* chart, const int64_t* element, const int64_t* variable) {
  return call(__func__, &ChartXml::AddSplit, chart, element, variable);
}
int64_t cx_addlabeling_(const int64_t* chart, const int64_t* element, const int64_t* variable) {
  return call(__func__, &ChartXml::AddLabeling, chart, element, variable);
}
int64_t cx_addlabelingsuffix_(const int64_t* chart, const int64_t* element, const int64_t* variable,
                              const int64_t* labelStyle) {
  return call(__func__, &ChartXml::AddLabelingSuffix, chart, element, variable, labelStyle);
}
int64_t cx_addlabelinginside_(const int64_t* chart, const int64_t* element,
                              const int64_t* variable) {
  const int64_t inside = strings::inside;
  return call(__func__, &ChartXml::AddLabelingSuffix, chart, element, variable, &inside);
}
int64_t cx_addstatistic_(const int64_t* chart, const int64_t* parent, const int64_t* method) {
  return call(__func__, &ChartXml::AddStatistic, chart, parent, method);
}
int64_t cx_addparam_(const int64_t* chart, const int64_t* statistic, const int64_t* name,
                     const int64_t* value) {
  return call(__func__, &ChartXml::AddParam, chart, statistic, name, value);
}
int64_t cx_addlabel_(const int64_t* chart, const int64_t* parent, const int64_t* suffix,
                     const int64_t* content) {
  return call(__func__, &ChartXml::AddLabel, chart, parent, suffix, content);
}
