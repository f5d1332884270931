#pragma once

#include <functional>
#include <string_view>

namespace host {

/// Takes a node of a chart document with the call that made it. A node is named by its id;
/// one without an id by its parent's name and its kind, "element_bar/x", and from the
/// second of its kind on by its number too, "element_bar/x[2]". Calls of a chart count
/// from 1. The texts are borrowed.
using TakeCall =
    std::function<void(std::string_view node, unsigned call, std::string_view callName)>;

/// Hands out the calls that made a chart's nodes, in the order of the document. A node
/// that is not among them was made by the call that made the one it stands in.
using NodeCalls = std::function<void(const TakeCall&)>;

} // namespace host
