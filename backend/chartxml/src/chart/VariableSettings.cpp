// What is set on a variable, or asked of it, after it was declared.
#include <chartxml/Chart.h>

#include "ChildOrder.h"
#include <host/ZephUni.h>

using xercesc::DOMElement;

int Chart::SetVariable(int variable, int column, bool categorical) {
  const KORVA_Variable* described = columnAt(column);
  if (!described || !validHandle(variable, "variable")) return -1;
  DOMElement* target = getElement(variable);
  if (!target) return -1;
  AddVariableLabels(*target, column);
  setFlag(*target, ZephUni::_categorical, categorical);
  if (!categorical) SetMetaFormat(*target, described->GetFormat());
  variableColumns_.emplace(variable, column);
  return variable;
}

int Chart::SetVariableExternal(int variable) {
  if (!validHandle(variable, "variable")) return -1;
  DOMElement* target = getElement(variable);
  if (!target) return -1;
  DOMElement* meta = nullptr;
  const int handle = AddMeta(*target, meta);
  setCreator(*meta, _external_, _aggregate);
  return handle;
}

int Chart::setVariableText(int variable, int string, const char* what, const XMLCh* attribute,
                           Where where) {
  if (!validHandle(variable, "variable", where) || !validString(string, what, where)) return -1;
  DOMElement* target = getElement(variable);
  if (!target) return -1;
  target->setAttribute(attribute, brokenIntoLines(string).c_str());
  return variable;
}

int Chart::SetVariableLabel(int variable, int label) {
  return setVariableText(variable, label, "label", ZephUni::_label, Where::current());
}

int Chart::SetVariableName(int variable, int name) {
  return setVariableText(variable, name, "name", ZephUni::_shortLabel, Where::current());
}

// A variable that reads no column is a constant.
int Chart::SetVariableValue(int variable, int value) {
  if (!validHandle(variable, "variable") || !validString(value, "value", Where::current())) {
    return -1;
  }
  DOMElement* target = getElement(variable);
  if (!target) return -1;
  target->removeAttribute(ZephUni::_sourceName);
  setText(*target, ZephUni::_value, value);
  return variable;
}

// The formats show numbers, which categories are not.
int Chart::SetVariableCategorical(int variable, bool categorical) {
  if (!validHandle(variable, "variable")) return -1;
  DOMElement* target = getElement(variable);
  if (!target) return -1;
  setFlag(*target, ZephUni::_categorical, categorical);
  DOMElement* meta = categorical ? childOrder_->first(*target, _meta) : nullptr;
  if (meta) childOrder_->clear(*meta);
  return variable;
}

// Callers mark a variable and go on: the answer is -1 also when it was marked.
int Chart::CreateLogVar(int variable) {
  if (!validHandle(variable, "variable")) return -1;
  DOMElement* target = getElement(variable);
  if (!target) return -1;
  DOMElement& meta = describedMeta(*target);
  if (!*meta.getAttribute(ZephUni::_description)) {
    meta.setAttribute(ZephUni::_description, ZephUni::_log);
  }
  return -1;
}

// A meta that is made to be described only stands last, and has no handle until it
// is asked for.
DOMElement& Chart::describedMeta(DOMElement& variable) {
  DOMElement* known = knownMeta(variable);
  return known ? *known : appendElement(variable, _meta);
}

int Chart::GetVariableLabel(int variable) const {
  if (!validHandle(variable, "variable")) return -1;
  const DOMElement* target = getElement(variable);
  return target ? stringHandler_->AddChartString(ChartString(labelOf(*target))) : -1;
}

const XMLCh* Chart::labelOf(const DOMElement& variable) {
  const XMLCh* label = variable.getAttribute(ZephUni::_label);
  return *label ? label : variable.getAttribute(ZephUni::_shortLabel);
}

int Chart::GetVariableFormat(int column) const {
  const KORVA_Variable* described = columnAt(column);
  return described ? static_cast<int>(static_cast<long>(described->GetFormat())) : -1;
}
