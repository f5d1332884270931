#include "read/Node.h"

#include <algorithm>

namespace render {

std::string_view Node::attribute(std::string_view name) const {
  const auto found =
      std::ranges::find(attributes, name, &std::pair<std::string, std::string>::first);
  return found == attributes.end() ? std::string_view() : std::string_view(found->second);
}

const Node* Node::child(std::string_view childKind) const {
  const auto found = std::ranges::find(children, childKind, &Node::kind);
  return found == children.end() ? nullptr : &*found;
}

} // namespace render
