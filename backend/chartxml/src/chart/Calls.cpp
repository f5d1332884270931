// Which call made each node: noted while a chart is built, told when it is sent.
#include <chartxml/Chart.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "../CallScope.h"
#include "Nodes.h"
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

/// A node whose children are being named.
struct Open {
  const DOMElement* element;
  std::string name{};
  unsigned call = 0;
  std::vector<std::pair<const XMLCh*, unsigned>> kinds{}; ///< of its children so far

  unsigned countOf(const XMLCh* kind) {
    const auto isKind = [&](const auto& each) {
      return xercesc::XMLString::equals(each.first, kind);
    };
    const auto known = std::ranges::find_if(kinds, isKind);
    return known == kinds.end() ? kinds.emplace_back(kind, 1).second : ++known->second;
  }
};

/// Empty for a node that is too deep below the last one with an id to be worth naming.
std::string nameBelow(const Open& parent, const DOMElement& node, unsigned number) {
  constexpr std::size_t longest = 250;
  if (node.hasAttribute(ZephUni::_id)) return host::utf8(node.getAttribute(ZephUni::_id));
  if (parent.name.size() > longest) return {};
  if (parent.name.empty() && node.getParentNode() != node.getOwnerDocument()->getDocumentElement())
    return {};
  std::string name = parent.name.empty() ? nameOf(&node) : parent.name + "/" + nameOf(&node);
  return number == 1 ? name : name + "[" + std::to_string(number) + "]";
}

/// A variable's value labels may be thousands, and nobody looks for one of them.
bool isListed(const DOMElement& node) { return !isNamed(node, ZephUni::_relabel); }

/// "Chart::AddX" of "int Chart::AddX(int, int)"; an entry point's name as it is.
std::string_view nameOfCall(std::string_view function) {
  function = function.substr(0, function.find('('));
  return function.substr(function.rfind(' ') + 1);
}

} // namespace

void Chart::countCall() {
  if (CallScope::name() && CallScope::number() == latestCall_) return;
  latestCall_ = CallScope::number();
  ++callCount_;
}

// An operation of the chart that no call of the registry led to stands for itself.
Chart::Maker Chart::makerNow(Where where) {
  countCall();
  return {CallScope::name() ? CallScope::name() : where.function_name(), callCount_};
}

void Chart::visitCalls(const host::TakeCall& take) const {
  std::vector<std::pair<const DOMElement*, const Maker*>> makers;
  makers.reserve(makers_.size());
  for (int handle = 1; handle < nextHandle_; ++handle)
    makers.emplace_back(getElement(handle), &makers_[static_cast<std::size_t>(handle) - 1]);
  std::ranges::sort(makers);
  const auto makerOf = [&](const DOMElement* element) -> const Maker* {
    const auto found =
        std::ranges::lower_bound(makers, element, {}, [](const auto& each) { return each.first; });
    return found != makers.end() && found->first == element ? found->second : nullptr;
  };

  const DOMElement& root = *document_->getDocumentElement();
  std::vector<Open> open{{.element = &root}};
  const auto always = [](const DOMElement&) { return true; };
  for (DOMElement* at = root.getFirstElementChild(); at; at = nextBelow(root, *at, always)) {
    while (open.back().element != at->getParentNode())
      open.pop_back();
    Open& parent = open.back();
    std::string name = nameBelow(parent, *at, parent.countOf(at->getNodeName()));
    const Maker* maker = name.empty() || !isListed(*at) ? nullptr : makerOf(at);
    const unsigned call = maker ? maker->call : parent.call;
    if (call != parent.call) take(name, call, nameOfCall(maker->name));
    if (at->getFirstElementChild())
      open.push_back({.element = at, .name = std::move(name), .call = call});
  }
}
