#include "KindsBelow.h"

#include <host/ChartBase.h>

using xercesc::DOMElement;
using xercesc::DOMNode;

namespace {

constexpr std::uint16_t anyKind = 0xFFFF;

std::uint16_t bitOf(int kind) { return static_cast<std::uint16_t>(1U << kind); }

} // namespace

void KindsBelow::note(const DOMElement& node, int kind) { noteAbove(node, bitOf(kind)); }

void KindsBelow::noteAny(DOMElement& root) {
  noteAbove(root, anyKind);
  const auto always = [](const DOMElement&) { return true; };
  for (DOMElement* at = root.getFirstElementChild(); at;
       at = ChartBase::nextBelow(root, *at, always))
    noteAbove(*at, anyKind);
}

// A node that holds the kinds already was noted with all that it stands in.
void KindsBelow::noteAbove(const DOMElement& node, std::uint16_t kinds) {
  for (const DOMNode* holder = node.getParentNode(); holder; holder = holder->getParentNode()) {
    std::uint16_t& known = kinds_[holder];
    if ((known & kinds) == kinds) return;
    known |= kinds;
  }
}

bool KindsBelow::holds(const DOMElement& root, int kind) const {
  const auto found = kinds_.find(&root);
  return found != kinds_.end() && (found->second & bitOf(kind)) != 0;
}
