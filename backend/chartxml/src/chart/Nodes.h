#pragma once

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

inline bool isNamed(const xercesc::DOMNode& node, const XMLCh* name) {
  return xercesc::XMLString::equals(node.getNodeName(), name);
}

inline bool hasValue(const xercesc::DOMElement& element, const XMLCh* attribute,
                     const XMLCh* value) {
  return xercesc::XMLString::equals(element.getAttribute(attribute), value);
}

/// Calls `visit` for every element of that name below `root`, in document order,
/// until it answers true.
template <class Visit>
bool visitDescendants(const xercesc::DOMElement& root, const XMLCh* name, Visit visit) {
  for (xercesc::DOMElement* child = root.getFirstElementChild(); child;
       child = child->getNextElementSibling()) {
    if (isNamed(*child, name) && visit(*child)) return true;
    if (visitDescendants(*child, name, visit)) return true;
  }
  return false;
}
