#include <chartxml/Chart.h>

#include <fmt/format.h>

#include "ChildOrder.h"
#include "DisplayText.h"
#include "Nodes.h"
#include "Placement.h"
#include "StringHandles.h"
#include <chartxml/ChartXml.h>
#include <host/Missing.h>
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr const XMLCh* variableKind[] = {ZephUni::_variable};

} // namespace

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

int Chart::AddRelabel(int variable, int from, int to) {
  const Where here = Where::current();
  if (!validHandle(variable, "variable") || !validString(from, "from", here) ||
      !validString(to, "to", here)) {
    return -1;
  }
  DOMElement* target = acceptedParent(variable, variableKind,
                                      "can't add relabel to anything but a variable - ", here);
  if (!target) return -1;
  const ChartString& fromText = stringHandler_->getXMLString(from);
  const ChartString& toText = stringHandler_->getXMLString(to);
  if (!isValidXMLString(fromText) || !isValidXMLString(toText)) return -1;
  return addRelabel(*target, fromText.c_str(), toText.c_str());
}

int Chart::addRelabel(DOMElement& variable, const XMLCh* from, const XMLCh* to) {
  DOMElement& relabel = makeElement(ZephUni::_relabel);
  relabel.setAttribute(ZephUni::_from, from);
  relabel.setAttribute(ZephUni::_to, to);
  return append(variable, relabel);
}

// A relabel must meet the value as it is stored: a number is stored in its
// shortest form, however many decimals its format shows.
int Chart::AddRelabels(int variable, int column) {
  const Where here = Where::current();
  if (!validHandle(variable, "variable") || !validVariable(column)) return -1;
  DOMElement* target = acceptedParent(variable, variableKind,
                                      "can't add relabel to anything but a variable - ", here);
  if (!target) return -1;

  const KORVA_Variable& described = dataSource_->GetVariable(column);
  const KORVA_ValueLabelMap& labels = described.GetValueLabels();
  int position = 0;
  const OBS* value = nullptr;
  const char* label = nullptr;
  while (labels.GetNextPair(position, value, label)) {
    if (!label || !*label) continue;
    if (described.GetType() == 0 && value->number == host::systemMissing) continue;
    const ChartString to = ChartXml::GetInstance()->transcode(label);
    ChartString from = ChartXml::GetInstance()->transcode(displayText(described, *value));
    if (from.isNumber()) {
      from.assignUTF8(asString(described.GetType() == 0 ? value->number : from.convertToDouble()));
    }
    if (isValidXMLString(from) && isValidXMLString(to))
      addRelabel(*target, from.c_str(), to.c_str());
  }
  return variable;
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
