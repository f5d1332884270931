#include "ChildOrder.h"

#include <algorithm>

#include "Nodes.h"

using xercesc::DOMElement;
using xercesc::DOMNode;

namespace {

// A scan this short costs less than a look-up.
constexpr int scanLimit = 12;

DOMElement* asElement(DOMNode* node) {
  return node && node->getNodeType() == DOMNode::ELEMENT_NODE ? static_cast<DOMElement*>(node)
                                                              : nullptr;
}

} // namespace

void ChildOrder::insert(DOMElement& parent, DOMElement& child, ConstChartStringSet before) {
  Firsts* firsts = known(parent);
  if (!firsts) {
    DOMNode* sibling = parent.getFirstChild();
    int seen = 0;
    while (sibling && seen < scanLimit && !isNamedAmong(*sibling, before)) {
      sibling = sibling->getNextSibling();
      ++seen;
    }
    if (seen < scanLimit) {
      parent.insertBefore(&child, sibling);
      return;
    }
    firsts = &remember(parent);
  }
  const auto at = std::ranges::find_if(
      *firsts, [&](const FirstOfName& first) { return isNamedAmong(*first.child, before); });
  parent.insertBefore(&child, at == firsts->end() ? nullptr : at->child);
  noteInserted(*firsts, child, at);
}

void ChildOrder::append(DOMElement& parent, DOMElement& child) {
  parent.appendChild(&child);
  if (Firsts* firsts = known(parent)) noteInserted(*firsts, child, firsts->end());
}

void ChildOrder::remove(DOMElement& child) {
  auto* parent = static_cast<DOMElement*>(child.getParentNode());
  if (Firsts* firsts = known(*parent)) {
    const auto own = findName(*firsts, child.getNodeName());
    if (own != firsts->end() && own->count == 1) {
      firsts->erase(own);
    } else if (own == firsts->end() || own->child == &child) {
      // Rare, and the order may be another then: told anew on next use.
      firsts_.erase(parent);
    } else {
      --own->count;
    }
  }
  parent->removeChild(&child);
}

void ChildOrder::clear(DOMElement& parent) {
  firsts_.erase(&parent);
  ChartBase::removeAllChildren(parent);
}

DOMElement* ChildOrder::first(const DOMElement& parent, const XMLCh* name) {
  Firsts* firsts = known(parent);
  if (!firsts) {
    DOMElement* child = parent.getFirstElementChild();
    for (int seen = 0; child && seen < scanLimit; ++seen) {
      if (isNamed(*child, name)) return child;
      child = child->getNextElementSibling();
    }
    if (!child) return nullptr;
    firsts = &remember(parent);
  }
  const auto own = findName(*firsts, name);
  return own == firsts->end() ? nullptr : own->child;
}

ChildOrder::Firsts* ChildOrder::known(const DOMElement& parent) {
  const auto found = firsts_.find(&parent);
  return found == firsts_.end() ? nullptr : &found->second;
}

ChildOrder::Firsts& ChildOrder::remember(const DOMElement& parent) {
  Firsts& firsts = firsts_[&parent];
  for (DOMNode* node = parent.getFirstChild(); node; node = node->getNextSibling()) {
    if (DOMElement* child = asElement(node)) noteInserted(firsts, *child, firsts.end());
  }
  return firsts;
}

ChildOrder::Firsts::iterator ChildOrder::findName(Firsts& firsts, const XMLCh* name) {
  return std::ranges::find_if(
      firsts, [name](const FirstOfName& first) { return isNamed(*first.child, name); });
}

// `at` is the remembered child that the new one was put before, or the end.
void ChildOrder::noteInserted(Firsts& firsts, DOMElement& child, Firsts::iterator at) {
  const auto own = findName(firsts, child.getNodeName());
  if (own == firsts.end()) {
    firsts.insert(at, {&child, 1});
    return;
  }
  ++own->count;
  if (at == firsts.end() || own < at) return;
  // The new child precedes the former first of its name: it takes the place
  // before the one it was put in front of.
  own->child = &child;
  std::rotate(at, own, own + 1);
}
