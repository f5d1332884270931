#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace render {

/// One element of the chart document, in UTF-8.
struct Node {
  std::string kind; ///< the element's name
  std::vector<std::pair<std::string, std::string>> attributes{};
  std::vector<Node> children{};
  std::string text{}; ///< the text of an element without children

  /// The value of an attribute, empty when it is absent.
  std::string_view attribute(std::string_view name) const;
  std::string_view id() const { return attribute("id"); }

  /// The first child of that kind, or null.
  const Node* child(std::string_view childKind) const;

  /// The node as notes name it: its id, or its kind when it has none.
  std::string_view name() const { return id().empty() ? std::string_view(kind) : id(); }
};

} // namespace render
