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
  /// Notes a node that came with nodes below it, or whose role may be set yet.
  void noteAny(xercesc::DOMElement& root);
  bool holds(const xercesc::DOMElement& root, int kind) const;

private:
  void noteAbove(const xercesc::DOMElement& node, std::uint16_t kinds);

  std::unordered_map<const xercesc::DOMNode*, std::uint16_t> kinds_;
};
