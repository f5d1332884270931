#pragma once

#include <cstddef>
#include <optional>
#include <source_location>
#include <string>
#include <string_view>

#include "check/NodeNames.h"
#include "read/Calls.h"
#include "resolve/Chart.h"

namespace render {

/// Takes what the rules find and tells where in the document it is and which call made it.
class Report {
public:
  Report(const Chart& chart, Notes& notes) : chart_(chart), notes_(notes) {}

  /// The rule whose findings come next.
  void begin(std::string_view rule);
  /// `what` is wrong, and what to do about it, as "<what>; <what to do>".
  void add(const Node& node, std::string_view what,
           std::source_location where = std::source_location::current());
  /// The same at the variable's node.
  void add(const Variable& variable, std::string_view what,
           std::source_location where = std::source_location::current());
  /// After the last rule.
  void end();

private:
  // Read when something is found: most charts need neither.
  const NodeNames& names();
  const Calls& calls();
  /// The call of the nearest node around that has one.
  const Call* callOf(const Node& node);

  const Chart& chart_;
  Notes& notes_;
  std::optional<NodeNames> names_;
  std::optional<Calls> calls_;
  std::string_view rule_;
  std::size_t count_ = 0; ///< of the rule
};

/// The variable's title in quotation marks, or "it" when its id is all that names it.
std::string called(const Variable& variable);

} // namespace render
