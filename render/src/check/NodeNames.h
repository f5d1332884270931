#pragma once

#include <string>
#include <unordered_map>

#include "read/Node.h"

namespace render {

/// What the builder calls the nodes of a document: by their ids; a node without one by its
/// parent's name and its kind, "element_bar/x", and from the second of its kind on by its
/// number too, "element_bar/x[2]".
class NodeNames {
public:
  explicit NodeNames(const Node& graph) { addChildren(graph); }

  std::string of(const Node& node) const;
  /// Null for what stands right below the graph.
  const Node* parentOf(const Node& node) const;

private:
  void addChildren(const Node& node);

  std::unordered_map<const Node*, const Node*> parents_;
};

} // namespace render
