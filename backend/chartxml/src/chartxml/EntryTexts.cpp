// Texts and labels; several ignore their first argument, which keeps the calls alike.
#include "EntryCall.h"

#include <chartxml/EntryPoints.h>

using namespace entry;

namespace {

/// The length of a label that is not to be shortened.
constexpr int64_t whole = -1;

int64_t formatWholeNumber(const char* entryPoint, int (ChartXml::*operation)(const double&, int),
                          const int64_t* number, const int64_t* format) {
  if (!number) return -1;
  const double value = integer(number);
  return call(entryPoint, operation, &value, format);
}

} // namespace

int64_t cx_nstring_(const int64_t*, const char* key, const int64_t* keyLength) {
  return call(__func__, &ChartXml::NString, Text{key, keyLength});
}
int64_t cx_string_(const int64_t*, const char* text, const int64_t* textLength) {
  return call(__func__, &ChartXml::NStringNoTranslate, Text{text, textLength});
}
int64_t cx_nstringnotranslate_(const int64_t*, const char* text, const int64_t* textLength) {
  return call(__func__, &ChartXml::NStringNoTranslate, Text{text, textLength});
}
int64_t cx_compositestring_(const int64_t*, const char* pattern, const int64_t* patternLength) {
  return call(__func__, &ChartXml::CompositeString, Text{pattern, patternLength});
}
int64_t cx_addparameter_(const int64_t*, const int64_t* composite, const int64_t* parameter) {
  return call(__func__, &ChartXml::AddParameter, composite, parameter);
}
int64_t cx_beginrepeat_(const int64_t*, const int64_t* composite) {
  return call(__func__, &ChartXml::BeginRepeat, composite);
}
int64_t cx_endrepeat_(const int64_t*, const int64_t* composite) {
  return call(__func__, &ChartXml::EndRepeat, composite);
}
int64_t cx_endcompositestring_(const int64_t*, const int64_t* composite) {
  return call(__func__, &ChartXml::EndCompositeString, composite);
}
int64_t cx_stylestring_(const int64_t*, const int64_t* string, const int64_t* index) {
  return call(__func__, &ChartXml::StyleString, string, index);
}
int64_t cx_tosk_(const int64_t*, const int64_t* string) {
  return call(__func__, &ChartXml::ToSK, string);
}
int64_t cx_variablelabel_(const int64_t*, const int64_t*, const int64_t* variable) {
  return call(__func__, &ChartXml::VariableLabel, variable);
}
int64_t cx_variablename_(const int64_t*, const int64_t*, const int64_t* variable) {
  return call(__func__, &ChartXml::VariableName, variable);
}
int64_t cx_value_(const int64_t* variable, const void* value) {
  return call(__func__, &ChartXml::Value, variable, value);
}
int64_t cx_meanvalue_(const int64_t* variable, const void* value) {
  return call(__func__, &ChartXml::MeanValue, variable, value);
}
int64_t cx_valuelabel_(const int64_t*, const int64_t* variable, const void* value) {
  return call(__func__, &ChartXml::ValueLabel, variable, value, &whole);
}
int64_t cx_valuelabelshort_(const int64_t* variable, const void* value, const int64_t* maxLength) {
  return call(__func__, &ChartXml::ValueLabel, variable, value, maxLength);
}
int64_t cx_objectlabel_(const int64_t* variable, const void* value) {
  return call(__func__, &ChartXml::ObjectLabel, variable, value);
}
int64_t cx_splitlist_(const int64_t*, const void* values, const int64_t*, const int64_t* name,
                      const int64_t* label, const int64_t* value, const int64_t* valueLabel) {
  return call(__func__, &ChartXml::SplitList, values, name, label, value, valueLabel);
}
int64_t cx_splitheader_(const void* values, const int64_t*) {
  return call(__func__, &ChartXml::SplitHeader, values, nullptr);
}
int64_t cx_double_(const double* number) { return call(__func__, &ChartXml::Double, number); }
int64_t cx_lrvalue_(const int64_t*, const double* number, const int64_t* format) {
  return call(__func__, &ChartXml::LRValue, number, format);
}
int64_t cx_lrvalueasstring_(const double* number, const int64_t* format) {
  return call(__func__, &ChartXml::LRValueAsString, number, format);
}

int64_t cx_integer_(const int64_t*, const int64_t* number) {
  return number ? call(__func__, &ChartXml::Integer, number) : -1;
}

int64_t cx_ivalue_(const int64_t*, const int64_t* number, const int64_t* format) {
  return formatWholeNumber(__func__, &ChartXml::LRValue, number, format);
}
int64_t cx_ivalueasstring_(const int64_t* number, const int64_t* format) {
  return formatWholeNumber(__func__, &ChartXml::LRValueAsString, number, format);
}

int64_t cx_variablelabelfromdictionary_(void* procedure, void* const* dictionary,
                                        const int64_t* variable) {
  return guarded(__func__, [&](ChartXml& registry) {
    return registry.VariableLabelFromDataSource(procedure, dictionaryAt(dictionary),
                                                integer(variable));
  });
}
