#include "check/NodeNames.h"

#include <algorithm>

#include <fmt/format.h>

namespace render {

void NodeNames::addChildren(const Node& node) {
  for (const Node& child : node.children) {
    parents_.emplace(&child, &node);
    addChildren(child);
  }
}

std::string NodeNames::of(const Node& node) const {
  if (!node.id().empty()) return std::string(node.id());
  const auto parent = parents_.find(&node);
  if (parent == parents_.end()) return node.kind;
  const auto isBefore = [&](const Node& sibling) {
    return sibling.kind == node.kind && &sibling < &node;
  };
  const auto before = std::ranges::count_if(parent->second->children, isBefore);
  const Node* named = parentOf(node);
  std::string name = named == nullptr ? node.kind : fmt::format("{}/{}", of(*named), node.kind);
  return before == 0 ? name : fmt::format("{}[{}]", name, before + 1);
}

const Node* NodeNames::parentOf(const Node& node) const {
  const auto parent = parents_.find(&node);
  const bool isBelowGraph = parent == parents_.end() || !parents_.contains(parent->second);
  return isBelowGraph ? nullptr : parent->second;
}

} // namespace render
