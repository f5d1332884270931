#include <chartxml/Chart.h>

#include <fmt/format.h>

#include "ChildOrder.h"
#include "Nodes.h"
#include "Placement.h"
#include "StringHandles.h"
#include <chartxml/ChartXml.h>
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

int Chart::AddVariable(int source, int column, bool categorical) {
  if (!validDataSource() || !validVariable(column)) return -1;
  const DOMElement* sourceNode = getElement(source);
  if (!sourceNode) return -1;

  DOMElement& variable = makeElement(ZephUni::_variable);
  AddVariableLabels(variable, column);
  const std::u16string name = nextVariableName();
  variable.setAttribute(ZephUni::_sourceName, name.c_str());
  AddIDAttribute(variable, -1);
  AddIDREFAttribute(variable, source, ZephUni::_source);

  setCreator(metaOf(variable), _external_, _datasource);
  setFlag(variable, ZephUni::_categorical, categorical);
  if (!categorical) formatMeta(variable, dataSource_->GetVariable(column).GetFormat());

  const int handle = place(*document_->getDocumentElement(), variable, placement::variable);
  variableColumns_.emplace(handle, column);
  mapSourceName(handle, sourceNode->getAttribute(ZephUni::_id), name);
  return handle;
}

// The source's columns are named by the number that the id counter had before the
// variable got its own.
std::u16string Chart::nextVariableName() const {
  std::u16string name = u"V";
  host::appendUtf16(name, asString(nextIdNumber_));
  return name;
}

void Chart::setCreator(DOMElement& meta, const XMLCh* origin, const XMLCh* kind) {
  std::u16string creator = origin;
  creator += kind;
  meta.setAttribute(ZephUni::_creator, creator.c_str());
}

void Chart::AddVariableLabels(DOMElement& variable, int column) {
  if (!validVariable(column)) return;
  const KORVA_Variable& described = dataSource_->GetVariable(column);
  addVariableLabel(variable, ZephUni::_label, described.GetLabel());
  addVariableLabel(variable, ZephUni::_shortLabel, described.GetName());
}

void Chart::addVariableLabel(DOMElement& variable, const XMLCh* attribute, const char* text) {
  if (!text || !*text) return;
  const ChartString label = ChartXml::GetInstance()->transcode(text);
  if (isValidXMLString(label)) variable.setAttribute(attribute, label.c_str());
}

bool Chart::mapSourceName(int variable, const XMLCh* sourceId, std::u16string_view sourceName) {
  auto store = std::make_unique<VarDataProcessor::_varinfo>();
  dataProcessor_->AddVariable(host::utf8(sourceId), host::utf8(sourceName), *store);
  variableStores_[variable] = std::move(store);
  return true;
}

// Of the columns recorded for a node the newest counts.
int Chart::getKORVAVarIndex(int variable) const {
  const auto end = variableColumns_.upper_bound(variable);
  if (end == variableColumns_.begin()) return -1;
  const auto newest = std::prev(end);
  return newest->first == variable ? newest->second : -1;
}

int Chart::GetVariableFormat(int column) const {
  if (!validVariable(column)) return -1;
  return static_cast<int>(static_cast<long>(dataSource_->GetVariable(column).GetFormat()));
}

// A computed variable: its values come from the procedure or the output system.
int Chart::AddAggregate(int source, int name, bool categorical, int label, int shortLabel,
                        int domain) {
  const Where here = Where::current();
  if (!validOptionalString(label, "label", here) ||
      !validOptionalString(shortLabel, "shortLabel", here) ||
      (domain != -1 && !validHandle(domain, "domain"))) {
    return -1;
  }
  const DOMElement* sourceNode = getElement(source);
  if (!sourceNode || (domain != -1 && !getElement(domain))) return -1;

  DOMElement& variable = makeElement(ZephUni::_variable);
  if (label != -1) setText(variable, ZephUni::_label, label);
  if (shortLabel != -1) setText(variable, ZephUni::_shortLabel, shortLabel);
  AddIDREFAttribute(variable, source, ZephUni::_source);
  const bool predefined =
      name == strings::casenum || name == strings::countname || name == strings::percentname;
  const std::u16string sourceName =
      predefined ? stringHandler_->getXMLString(name).text() : nextVariableName();
  variable.setAttribute(ZephUni::_sourceName, sourceName.c_str());
  AddIDAttribute(variable, -1);
  if (domain != -1) AddIDREFAttribute(variable, domain, ZephUni::_domain);
  setFlag(variable, ZephUni::_categorical, categorical);

  DOMElement& meta = metaOf(variable);
  if (sourceName == _casenum) {
    setCreator(meta, _external_, _system);
  } else if (sourceName != _countname) {
    setCreator(meta, _internal_, _aggregate);
  }
  const int handle = place(*document_->getDocumentElement(), variable, placement::variable);
  mapSourceName(handle, sourceIdOf(*sourceNode), sourceName);
  return handle;
}

// The store knows sources only: a variable stands for the source it reads from.
const XMLCh* Chart::sourceIdOf(const DOMElement& sourceOrVariable) {
  return sourceOrVariable.getAttribute(
      isNamed(sourceOrVariable, ZephUni::_variable) ? ZephUni::_source : ZephUni::_id);
}

// Callers mark a variable and go on: the answer is -1 also when it was marked.
int Chart::CreateLogVar(int variable) {
  if (!validHandle(variable, "variable")) return -1;
  DOMElement* target = getElement(variable);
  if (!target) return -1;
  DOMElement* meta = childOrder_->first(*target, _meta);
  if (!meta) meta = &appendElement(*target, _meta);
  if (!*meta->getAttribute(ZephUni::_description)) {
    meta->setAttribute(ZephUni::_description, ZephUni::_log);
  }
  return -1;
}
