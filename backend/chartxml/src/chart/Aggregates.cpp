// Computed variables: their values come from the procedure or the output system.
#include <chartxml/Chart.h>

#include "Nodes.h"
#include "StringHandles.h"
#include <host/ZephUni.h>

using xercesc::DOMElement;

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
  setOptionalText(variable, ZephUni::_label, label);
  setOptionalText(variable, ZephUni::_shortLabel, shortLabel);
  AddIDREFAttribute(variable, source, ZephUni::_source);
  const std::u16string sourceName = aggregateName(name);
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
  const int handle = placeVariable(variable);
  mapSourceName(handle, sourceIdOf(*sourceNode), sourceName.c_str());
  return handle;
}

// The output system fills the columns of these names itself.
std::u16string Chart::aggregateName(int name) {
  const bool predefined =
      name == strings::casenum || name == strings::countname || name == strings::percentname;
  return predefined ? stringHandler_->getXMLString(name).text() : nextVariableName();
}

int Chart::AddLabelingAggregate(int source, int name, bool categorical, int label, int shortLabel,
                                int domain) {
  const int variable = AddAggregate(source, name, categorical, label, shortLabel, domain);
  if (variable != -1) describeAsLabeling(*getElement(variable));
  return variable;
}
