// Lists of variables, and the variables that are derived from them.
#include <chartxml/Chart.h>

#include <fmt/format.h>

#include "Nodes.h"
#include "StringHandles.h"
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr int xRole = 1;
constexpr int yRole = 2;

} // namespace

int Chart::BeginVariableList() {
  variableLists_[variableListCount_];
  return variableListCount_++;
}

int Chart::AddToVariableList(int list, int variable) {
  const Where here = Where::current();
  if (!validVariableList(list) || !validHandle(variable, "variable")) return -1;
  const DOMElement* target = getElement(variable);
  if (!target || !isNamed(*target, ZephUni::_variable)) {
    report(
        fmt::format("handle does not refer to a variable element {} {}", nameOf(target), variable),
        here);
    return -1;
  }
  std::vector<int>* members = variableList(list, "AddToVariableList", here);
  if (!members) return -1;
  members->push_back(variable);
  return list;
}

std::vector<int>* Chart::variableList(int list, const char* operation, Where where) {
  const auto found = variableLists_.find(list);
  if (found != variableLists_.end()) return &found->second;
  report(fmt::format("{} failed: could not find key {}", operation, list), where);
  return nullptr;
}

// A range is labelled as what it spans on the y axis.
int Chart::AddRangeVariable(int list) { return AddOverlayVariable(list, yRole); }

int Chart::AddOverlayVariable(int list, int role) {
  if (!validVariableList(list) || !validRole(role)) return -1;
  // The procedures know the operation by this name.
  const std::vector<int>* members =
      variableList(list, "AddOverlayExpressionVariable", Where::current());
  if (!members) return -1;

  std::u16string expression;
  for (const int member : *members)
    addTerm(expression, getElement(member)->getAttribute(ZephUni::_id));
  return addDerivedVariable(expression, role == xRole ? strings::xAxis : strings::yAxis);
}

// Each member stands with a constant that labels it: matrix panels are told apart by it.
int Chart::AddMatrixVariable(int list) {
  if (!validVariableList(list)) return -1;
  const std::vector<int>* members = variableList(list, "AddMatrixVariable", Where::current());
  if (!members) return -1;

  std::u16string expression;
  for (const int handle : *members) {
    const DOMElement& member = *getElement(handle);
    const std::u16string id = member.getAttribute(ZephUni::_id);
    const std::u16string labelId = id + ZephUni::_label;
    if (!isVariableOfGraph(labelId.c_str())) addLabelVariable(member, labelId);
    addTerm(expression, id);
    expression += u'/';
    expression += labelId;
  }
  return addDerivedVariable(expression, strings::yAxis);
}

// The register answers at once; only an id that stands elsewhere too makes a search
// among the graph's children necessary.
bool Chart::isVariableOfGraph(const XMLCh* id) const {
  const DOMElement* graph = document_->getDocumentElement();
  const DOMElement* known = document_->getElementById(id);
  if (!known || known->getParentNode() == graph) return known;
  return findNodeById(*graph->getChildNodes(), id);
}

void Chart::addTerm(std::u16string& expression, std::u16string_view term) {
  if (!expression.empty()) expression += u" + ";
  expression += term;
}

// The constant's one value is a token, shown as the member's label.
void Chart::addLabelVariable(const DOMElement& member, const std::u16string& id) {
  std::u16string token = ZephUni::_label;
  token += member.getAttribute(ZephUni::_id);
  const std::u16string value = _constant + (u'(' + token + u')');

  DOMElement& variable = makeElement(ZephUni::_variable);
  AddID(variable, id.c_str());
  setFlag(variable, ZephUni::_categorical, true);
  if (member.hasAttribute(ZephUni::_source)) {
    variable.setAttribute(ZephUni::_source, member.getAttribute(ZephUni::_source));
  }
  variable.setAttribute(ZephUni::_value, value.c_str());
  const XMLCh* label = labelOf(member);
  if (*label) appendRelabel(variable, token.c_str(), label);
  placeVariable(variable);
  setCreator(metaOf(variable), _internal_, ZephUni::_variable);
}

int Chart::addDerivedVariable(const std::u16string& expression, int shortLabel, Where where) {
  DOMElement& variable = makeElement(ZephUni::_variable);
  AddIDAttribute(variable, -1);
  setFlag(variable, ZephUni::_categorical, false);
  variable.setAttribute(ZephUni::_expression, expression.c_str());
  setText(variable, ZephUni::_shortLabel, shortLabel);
  setCreator(metaOf(variable), _internal_, ZephUni::_variable);
  return placeVariable(variable, where);
}
