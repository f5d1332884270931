#include "KindsBelow.h"

using xercesc::DOMElement;
using xercesc::DOMNode;

namespace {

std::uint16_t bitOf(int kind) { return static_cast<std::uint16_t>(1U << kind); }

} // namespace

// A node that holds the kind already was noted with all that it stands in.
void KindsBelow::note(const DOMElement& node, int kind) {
  for (const DOMNode* holder = node.getParentNode(); holder; holder = holder->getParentNode()) {
    std::uint16_t& kinds = kinds_[holder];
    if ((kinds & bitOf(kind)) != 0) return;
    kinds |= bitOf(kind);
  }
}

bool KindsBelow::holds(const DOMElement& root, int kind) const {
  const auto found = kinds_.find(&root);
  return found != kinds_.end() && (found->second & bitOf(kind)) != 0;
}
