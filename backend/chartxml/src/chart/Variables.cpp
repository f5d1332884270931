// The columns that a chart reads, declared as variables of its document.
#include <chartxml/Chart.h>

#include "ChildOrder.h"
#include "Nodes.h"
#include "Placement.h"
#include <chartxml/ChartXml.h>
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

int Chart::AddVariable(int source, int column, bool categorical) {
  const KORVA_Variable* described = validDataSource() ? columnAt(column) : nullptr;
  const DOMElement* sourceNode = described ? getElement(source) : nullptr;
  if (!sourceNode) return -1;

  const std::u16string name = nextVariableName();
  DOMElement& variable = makeColumnVariable(source, column, name);
  setCreator(metaOf(variable), _external_, _datasource);
  setFlag(variable, ZephUni::_categorical, categorical);
  if (!categorical) formatMeta(variable, described->GetFormat());
  return enterColumnVariable(variable, *sourceNode, column, name);
}

int Chart::AddLabelingVariable(int source, int column, bool categorical) {
  const int variable = AddVariable(source, column, categorical);
  if (variable != -1) describeAsLabeling(*getElement(variable));
  return variable;
}

int Chart::AddWeightVariable(int source, int column) {
  const bool isDescribed = validDataSource() && columnAt(column);
  const DOMElement* sourceNode = isDescribed ? getElement(source) : nullptr;
  if (!sourceNode) return -1;

  DOMElement& variable = makeColumnVariable(source, column, _weightname);
  setFlag(variable, ZephUni::_categorical, false);
  const int handle = enterColumnVariable(variable, *sourceNode, column, _weightname);
  const int meta = AddMeta(handle);
  SetMetaWeight(meta, true);
  setCreator(*getElement(meta), _external_, _system);
  AddFormat(meta, column);
  return handle;
}

DOMElement& Chart::makeColumnVariable(int source, int column, const std::u16string& name) {
  DOMElement& variable = makeElement(ZephUni::_variable);
  AddVariableLabels(variable, column);
  variable.setAttribute(ZephUni::_sourceName, name.c_str());
  AddIDAttribute(variable, -1);
  AddIDREFAttribute(variable, source, ZephUni::_source);
  return variable;
}

int Chart::enterColumnVariable(DOMElement& variable, const DOMElement& source, int column,
                               const std::u16string& name, Where where) {
  const int handle = placeVariable(variable, where);
  variableColumns_.emplace(handle, column);
  mapSourceName(handle, sourceIdOf(source), name.c_str());
  return handle;
}

int Chart::placeVariable(DOMElement& variable, Where where) {
  return place(*document_->getDocumentElement(), variable, placement::variable, where);
}

// The copy has the attributes only: no meta, and no values of its own.
int Chart::CopyVariable(int variable) {
  if (!validHandle(variable, "variable")) return -1;
  const DOMElement* original = getElement(variable);
  if (!original) return -1;
  DOMElement& copy = copyWithoutId(*original);
  AddIDAttribute(copy, -1);
  return place(*document_->getDocumentElement(), copy, placement::variableCopy);
}

DOMElement& Chart::copyWithoutId(const DOMElement& original) {
  DOMElement& copy = makeElement(original.getNodeName());
  mergeAttributes(original, copy);
  return copy;
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

void Chart::describeAsLabeling(DOMElement& variable) {
  metaOf(variable).setAttribute(ZephUni::_description, ZephUni::_labeling);
}

int Chart::AddVariableLabels(DOMElement& variable, int column) {
  const KORVA_Variable* described = columnAt(column);
  if (!described) return -1;
  addVariableLabel(variable, ZephUni::_label, described->GetLabel());
  addVariableLabel(variable, ZephUni::_shortLabel, described->GetName());
  return 0;
}

void Chart::addVariableLabel(DOMElement& variable, const XMLCh* attribute, const char* text) {
  if (!text || !*text) return;
  const ChartString label = ChartXml::GetInstance()->transcode(text);
  if (isValidXMLString(label)) variable.setAttribute(attribute, label.c_str());
}

bool Chart::mapSourceName(int variable, const XMLCh* sourceId, const XMLCh* sourceName) {
  auto store = std::make_unique<VarDataProcessor::_varinfo>();
  dataProcessor_->AddVariable(host::utf8(sourceId), host::utf8(sourceName), *store);
  variableStores_[variable] = std::move(store);
  latestStore_ = nullptr; // may be the one that was there before
  return true;
}

// The store knows sources only: a variable stands for the source that it reads from,
// be it by way of other variables. No such way is longer than there are nodes.
const XMLCh* Chart::sourceIdOf(const DOMElement& sourceOrVariable) const {
  const DOMElement* at = &sourceOrVariable;
  for (int hops = 0; hops < nextHandle_ && isNamed(*at, ZephUni::_variable); ++hops) {
    const XMLCh* id = at->getAttribute(ZephUni::_source);
    at = document_->getElementById(id);
    if (!at) return id;
  }
  return at->getAttribute(ZephUni::_id);
}

// Of the columns recorded for a node the newest counts.
int Chart::getKORVAVarIndex(int variable) const {
  const auto end = variableColumns_.upper_bound(variable);
  if (end == variableColumns_.begin()) return -1;
  const auto newest = std::prev(end);
  return newest->first == variable ? newest->second : -1;
}
