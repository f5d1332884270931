#pragma once

#include <source_location>
#include <string>

namespace host {

/// What a check of a chart against its data found, told in the error log, in the chart
/// folder's manifest and in the notes of its page.
struct Finding {
  std::string check{};          ///< the rule, such as "empty-variable"
  std::string node{};           ///< as host::TakeCall names nodes; empty: the chart
  unsigned call = 0;            ///< that made the node, counted from 1; 0: not known
  std::string callName{};       ///< its entry point or operation
  std::string text{};           ///< all of it in one line, and what to do
  std::source_location where{}; ///< the rule's place in the library
};

} // namespace host
