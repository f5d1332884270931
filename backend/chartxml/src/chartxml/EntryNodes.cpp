// Frames and elements.
#include "EntryCall.h"

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
