#pragma once

#include <algorithm>
#include <array>

#include <xercesc/dom/DOMElement.hpp>

#include "Nodes.h"
#include <chartxml/Chart.h>

/// Which nodes an operation takes, and how it refuses others.
struct NodeRule {
  const char* noun;                  ///< what a report calls the handle
  std::array<const XMLCh*, 2> kinds; ///< accepted element names; none: any node
  const char* refusal;               ///< goes before the refused node's name; null: silently

  bool accepts(const xercesc::DOMElement& node) const {
    return !kinds[0] || std::ranges::any_of(
                            kinds, [&](const XMLCh* kind) { return kind && isNamed(node, kind); });
  }
};

/// An attribute that an operation sets.
struct AttributeRule {
  NodeRule node;
  const XMLCh* attribute;
  const char* textNoun; ///< what a report calls the handle of its text
};

/// A node that an operation makes with nothing in it.
struct ChildRule {
  NodeRule parent;
  const XMLCh* name;
  ConstChartStringSet before;
};
