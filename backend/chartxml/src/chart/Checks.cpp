#include <chartxml/Chart.h>

#include <fmt/format.h>

#include "../Report.h"
#include "NodeRule.h"
#include "Nodes.h"
#include <chartxml/Role.h>
#include <host/CodePages.h>
#include <host/Text.h>

using xercesc::DOMElement;

// The next handle passes too, though no element has it yet: operations meet it as
// a missing element.
bool Chart::validHandle(int handle, const char* what, Where where) const {
  if (handle >= 0 && handle <= nextHandle_) return true;
  report(fmt::format("{} handle ({}) out of range (0-{})", what, handle, nextHandle_), where);
  return false;
}

bool Chart::validID(const XMLCh* id, Where where) const {
  if (!document_->getElementById(id)) return true;
  report("id has already been used - " + KORVAMBTranscodeGeneric(id), where);
  return false;
}

bool Chart::validRole(int role, Where where) const {
  if (role >= Role::first && role <= Role::last) return true;
  report(fmt::format("invalid role {}", role), where);
  return false;
}

bool Chart::validDataSource(Where where) const {
  if (dataSource_) return true;
  report("no datasource", where);
  return false;
}

// A data source that fails to answer must not stop the chart: it has the column then.
bool Chart::hasColumn(int index) const {
  if (index < 0 || !dataSource_) return false;
  try {
    return index < dataSource_->ColumnCount();
  } catch (const KorvaGoToCaller&) {
    throw;
  } catch (...) {
    return true;
  }
}

// Reports its own place, not its caller's. An index whose refusal fails to be reported
// counts as good.
bool Chart::validVariable(int index) const {
  try {
    if (index >= 0 && validDataSource() && hasColumn(index)) return true;
    report(fmt::format("invalid variable index {}", index), Where::current());
    return false;
  } catch (const KorvaGoToCaller&) {
    throw;
  } catch (...) {
    return true;
  }
}

// The column of an index, or null where the check refuses it or passes what is none.
const KORVA_Variable* Chart::columnAt(int index) const {
  return validVariable(index) && hasColumn(index) ? &dataSource_->GetVariable(index) : nullptr;
}

bool Chart::validVariableList(int list) const {
  if (list >= 0 && list < variableListCount_) return true;
  report(fmt::format("variable list handle out of range {}", list), Where::current());
  return false;
}

bool Chart::validString(int string, const char* what, Where where) const {
  return stringHandler_->validString(string, what, where);
}

bool Chart::validOptionalString(int string, const char* what, Where where) const {
  return string == -1 || validString(string, what, where);
}

DOMElement* Chart::elementOfKind(int handle, const XMLCh* kind) const {
  DOMElement* element = getElement(handle);
  return element && isNamed(*element, kind) ? element : nullptr;
}

bool Chart::valid(int handle, const NodeRule& rule, Where where) const {
  return validHandle(handle, rule.noun, where);
}

// The node under a handle when its kind is accepted; else the refusal is reported
// with the node's name, empty when there is no node.
DOMElement* Chart::accepted(int handle, const NodeRule& rule, Where where) const {
  DOMElement* node = getElement(handle);
  if (node && rule.accepts(*node)) return node;
  if (rule.refusal) report(rule.refusal + nameOf(node), where);
  return nullptr;
}

void Chart::report(const std::string& message, Where where) const { reportRefusal(message, where); }
