#include <chartxml/Chart.h>

#include <algorithm>
#include <array>

#include "Nodes.h"
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

// Elements that are not drawn themselves have no style.
constexpr std::array<const XMLCh*, 6> unstyled{ZephUni::_domain,   ZephUni::_source,
                                               Chart::_facetlabel, ZephUni::_variable,
                                               Chart::_styleby,    ZephUni::_legendTarget};

} // namespace

int Chart::AddIDAttribute(DOMElement& element, const XMLCh* id, bool sharedStyle, Where where) {
  const XMLCh* legal = legalText(id, xercesc::XMLString::stringLen(id));
  return validID(legal, where) ? giveId(element, legal, sharedStyle, where) : -1;
}

int Chart::AddIDAttribute(DOMElement& element, int stringHandle, Where where) {
  idText_ = element.getNodeName();
  if (stringHandle >= 0) {
    idText_ += _underscore;
    idText_ += legalText(stringHandle);
    if (validID(idText_.c_str(), where)) return giveId(element, idText_.c_str(), false, where);
    idText_ = element.getNodeName();
  }
  host::appendUtf16(idText_, asString(nextIdNumber_));
  return AddIDAttribute(element, idText_.c_str(), true, where);
}

int Chart::giveId(DOMElement& element, const XMLCh* id, bool sharedStyle, Where where) {
  AddID(element, id);
  const int number = nextIdNumber_++;
  AddIDAttributeStyle(element, id, sharedStyle, where);
  return number;
}

void Chart::AddIDREFAttribute(DOMElement& element, int handle, const XMLCh* attribute) {
  if (const DOMElement* target = getElement(handle)) {
    element.setAttribute(attribute, target->getAttribute(ZephUni::_id));
  }
}

void Chart::AddIDAttributeStyle(DOMElement& element, const XMLCh* id, bool sharedStyle,
                                Where where) {
  if (std::ranges::any_of(unstyled, [&](const XMLCh* name) { return isNamed(element, name); })) {
    return;
  }
  if (sharedStyle) {
    element.setAttribute(ZephUni::_style, _default_style);
    if (!defaultStyleElement_) AddStyle(*styleContainer_, _default_style);
    return;
  }
  std::u16string style = id;
  style += _default_style;
  element.setAttribute(ZephUni::_style, style.c_str());
  AddStyle(*styleContainer_, style.c_str());
  if (isNamed(element, ZephUni::_axis)) {
    AddStyleAttribute(element, element, ZephUni::_baselineStyle, where);
  }
}

int Chart::AddStyle(DOMElement& parent, const XMLCh* id) {
  if (document_->getElementById(id)) return -1;
  DOMElement& style = appendElement(parent, ZephUni::_style);
  AddID(style, id);
  if (xercesc::XMLString::equals(id, _default_style)) defaultStyleElement_ = &style;
  return 0;
}

DOMElement* Chart::AddStyleCycle(const XMLCh* id, const XMLCh* styleId, Where where) {
  if (!validID(id, where)) return nullptr;
  DOMElement& styleCycle = makeElement(_stylecycle);
  AddID(styleCycle, id);
  DOMElement& cycle = appendElement(styleCycle, u"cycle");
  if (styleId) AddStyle(cycle, styleId);
  return &styleCycle;
}

DOMElement* Chart::addNamedCycle(const XMLCh* id) {
  const std::u16string styleId = std::u16string(u"style_") + id;
  return AddStyleCycle(id, styleId.c_str());
}

// An axis's own styles are named by its id alone; ticks borrow the axis's id, so
// minor ticks beside major ones find the name taken.
void Chart::AddStyleAttribute(const DOMElement& owner, DOMElement& target, const XMLCh* attribute,
                              Where where) {
  std::u16string value;
  if (!isNamed(owner, ZephUni::_axis)) {
    value = owner.getNodeName();
    value += _underscore;
  }
  value += owner.getAttribute(ZephUni::_id);
  value += attribute;
  if (!validID(value.c_str(), where)) return;
  target.setAttribute(attribute, value.c_str());
  AddStyle(*styleContainer_, value.c_str());
}

void Chart::setOwnStyle(DOMElement& element, const XMLCh* attribute, const std::u16string& style) {
  element.setAttribute(attribute, style.c_str());
  AddStyle(*styleContainer_, style.c_str());
}

// "<stem>", "_" and the suffix's text where there is one, and the default style's
// name: how parts that have no id of their own name their style.
std::u16string Chart::styleName(const XMLCh* stem, int suffix) {
  std::u16string name = stem;
  if (suffix >= 0) {
    name += _underscore;
    name += legalText(suffix);
  }
  name += _default_style;
  return name;
}
