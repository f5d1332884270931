// What is set on variables, and what is derived from them.
#include "EntryCall.h"

#include <chartxml/EntryPoints.h>

using namespace entry;

int64_t cx_addlabelingvariable_(const int64_t* chart, const int64_t* source,
                                const int64_t* variable, const int64_t* categorical) {
  return call(__func__, &ChartXml::AddLabelingVariable, chart, source, variable, categorical);
}
int64_t cx_addweightvariable_(const int64_t* chart, const int64_t* source,
                              const int64_t* variable) {
  return call(__func__, &ChartXml::AddWeightVariable, chart, source, variable);
}
int64_t cx_setvariable_(const int64_t* chart, const int64_t* node, const int64_t* variable,
                        const int64_t* categorical) {
  return call(__func__, &ChartXml::SetVariable, chart, node, variable, categorical);
}
int64_t cx_setaggregateexternal_(const int64_t* chart, const int64_t* variable) {
  return call(__func__, &ChartXml::SetAggregateExternal, chart, variable);
}
int64_t cx_setvariablelabel_(const int64_t* chart, const int64_t* variable,
                             const int64_t* caption) {
  return call(__func__, &ChartXml::SetVariableLabel, chart, variable, caption);
}
int64_t cx_setvariablename_(const int64_t* chart, const int64_t* variable, const int64_t* name) {
  return call(__func__, &ChartXml::SetVariableName, chart, variable, name);
}
int64_t cx_setvariablevalue_(const int64_t* chart, const int64_t* variable, const int64_t* value) {
  return call(__func__, &ChartXml::SetVariableValue, chart, variable, value);
}
int64_t cx_setvariablecategorical_(const int64_t* chart, const int64_t* variable,
                                   const int64_t* categorical) {
  return call(__func__, &ChartXml::SetVariableCategorical, chart, variable, categorical);
}
int64_t cx_getvariablelabel_(const int64_t* chart, const int64_t* variable) {
  return call(__func__, &ChartXml::GetVariableLabel, chart, variable);
}
int64_t cx_addlabelingaggregate_(const int64_t* chart, const int64_t* source, const int64_t* name,
                                 const int64_t* categorical, const int64_t* label,
                                 const int64_t* shortLabel, const int64_t* domain) {
  return call(__func__, &ChartXml::AddLabelingAggregate, chart, source, name, categorical, label,
              shortLabel, domain);
}
int64_t cx_setsummaryfunction_(const int64_t* chart, const int64_t* variable,
                               const int64_t* summary, const double* firstValue,
                               const double* secondValue) {
  return call(__func__, &ChartXml::SetSummaryFunction, chart, variable, summary, firstValue,
              secondValue);
}
int64_t cx_beginvariablelist_(const int64_t* chart) {
  return call(__func__, &ChartXml::BeginVariableList, chart);
}
int64_t cx_addtovariablelist_(const int64_t* chart, const int64_t* list, const int64_t* variable) {
  return call(__func__, &ChartXml::AddToVariableList, chart, list, variable);
}
int64_t cx_addoverlayvariable_(const int64_t* chart, const int64_t* list, const int64_t* role) {
  return call(__func__, &ChartXml::AddOverlayVariable, chart, list, role);
}
int64_t cx_addrangevariable_(const int64_t* chart, const int64_t* list) {
  return call(__func__, &ChartXml::AddRangeVariable, chart, list);
}
int64_t cx_addmatrixvariable_(const int64_t* chart, const int64_t* list) {
  return call(__func__, &ChartXml::AddMatrixVariable, chart, list);
}
