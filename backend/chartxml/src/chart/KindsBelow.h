#pragma once

#include <cstdint>
#include <unordered_map>

#include <xercesc/dom/DOMElement.hpp>

#include <chartxml/Role.h>

/// Which kinds of nodes stand anywhere below each node, so that a search does not
/// walk where there is nothing to find. A kind stays noted when its node leaves the
/// tree.
class KindsBelow {
public:
  // A dimension's kind is its role's number.
  static constexpr int tableFacet = Role::last + 1;
  static constexpr int facetLabeling = Role::last + 2;

  /// Notes a node that was placed.
  void note(const xercesc::DOMElement& node, int kind);
  bool holds(const xercesc::DOMElement& root, int kind) const;

private:
  std::unordered_map<const xercesc::DOMNode*, std::uint16_t> kinds_;
};
