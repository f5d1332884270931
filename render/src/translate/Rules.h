#pragma once

#include <initializer_list>
#include <string_view>

#include "translate/Translator.h"

namespace render {

/// What is known of one kind of node.
struct Rule {
  std::string_view kind; ///< an element or guide is known by kind and type, "element:point"
  std::initializer_list<std::string_view> parents;
  /// The attributes that are drawn or that change nothing in the picture;
  /// "name=value" is known with that value only.
  std::initializer_list<std::string_view> attributes;
  /// Null: its parent's translator or the resolving phase reads it.
  Translator translate = nullptr;

  bool knows(std::string_view name, std::string_view value) const;
};

/// The rule of a node below its parent, or null.
const Rule* findRule(const Node& node, const Node& parent);

} // namespace render
