#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "read/Node.h"

namespace render {

/// A chart document and the look-up of its nodes by id.
class Document {
public:
  /// Reads a chart document. Declarations outside it are never fetched. Throws
  /// RenderError, "<file>:<line>:<column>: <reason>".
  static Document read(const std::filesystem::path& file);

  const Node& graph() const { return *graph_; }
  /// The node of that id, or null.
  const Node* find(std::string_view id) const;

private:
  explicit Document(std::unique_ptr<Node> graph);
  void registerIds(const Node& node);

  std::unique_ptr<Node> graph_;
  std::unordered_map<std::string_view, const Node*> nodeOfId_;
};

} // namespace render
