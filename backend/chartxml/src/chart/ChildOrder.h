#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

#include <xercesc/dom/DOMElement.hpp>

#include <chartxml/Chart.h>

/// Places children among their siblings at a cost that does not grow with their
/// number.
///
/// The rule is a scan: before the first child whose name is in a set, else last.
/// For a parent with many children the scan's answer is remembered instead: the
/// first child of each name, in document order. A set's first match is always the
/// first child of its name, so the answer is the first remembered child whose name
/// is in the set. Every child of such a parent must come and go through here.
class ChildOrder {
public:
  void insert(xercesc::DOMElement& parent, xercesc::DOMElement& child, ConstChartStringSet before);
  void append(xercesc::DOMElement& parent, xercesc::DOMElement& child);
  void remove(xercesc::DOMElement& child);
  /// Removes every child; the ids below the parent become free.
  void clear(xercesc::DOMElement& parent);
  /// The first child of that name, or null.
  xercesc::DOMElement* first(const xercesc::DOMElement& parent, const XMLCh* name);

private:
  struct FirstOfName {
    xercesc::DOMElement* child;
    std::size_t count; ///< children of this name
  };
  using Firsts = std::vector<FirstOfName>;

  Firsts* known(const xercesc::DOMElement& parent);
  Firsts& remember(const xercesc::DOMElement& parent);
  static Firsts::iterator findName(Firsts& firsts, const XMLCh* name);
  static void noteInserted(Firsts& firsts, xercesc::DOMElement& child, Firsts::iterator at);

  std::unordered_map<const xercesc::DOMElement*, Firsts> firsts_;
};
