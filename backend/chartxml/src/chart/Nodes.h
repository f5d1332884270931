#pragma once

#include <algorithm>
#include <span>
#include <string>

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

#include <host/ChartBase.h>
#include <host/Text.h>

inline bool isNamed(const xercesc::DOMNode& node, const XMLCh* name) {
  return xercesc::XMLString::equals(node.getNodeName(), name);
}

inline bool isNamedAmong(const xercesc::DOMNode& node, std::span<const XMLCh* const> names) {
  return std::ranges::any_of(names, [&](const XMLCh* name) { return isNamed(node, name); });
}

/// The node's name, empty when there is no node.
inline std::string nameOf(const xercesc::DOMNode* node) {
  return node ? host::utf8(node->getNodeName()) : std::string();
}

inline bool hasValue(const xercesc::DOMElement& element, const XMLCh* attribute,
                     const XMLCh* value) {
  return xercesc::XMLString::equals(element.getAttribute(attribute), value);
}

/// Calls `visit` for every element of that name below `root`, in document order,
/// until it answers true, and goes down only where `enter` answers true.
template <class Visit, class Enter> bool
visitDescendants(const xercesc::DOMElement& root, const XMLCh* name, Visit visit, Enter enter) {
  for (xercesc::DOMElement* at = root.getFirstElementChild(); at;
       at = ChartBase::nextBelow(root, *at, enter)) {
    if (isNamed(*at, name) && visit(*at)) return true;
  }
  return false;
}

template <class Visit>
bool visitDescendants(const xercesc::DOMElement& root, const XMLCh* name, Visit visit) {
  return visitDescendants(root, name, visit, [](const xercesc::DOMElement&) { return true; });
}
