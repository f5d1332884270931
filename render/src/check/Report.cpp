#include "check/Report.h"

#include <fmt/format.h>

#include "text/Show.h"

namespace render {
namespace {

/// More of one kind than anybody reads have one cause.
constexpr std::size_t mostOfRule = 20;

} // namespace

void Report::begin(std::string_view rule) {
  end();
  rule_ = rule;
  count_ = 0;
}

void Report::add(const Node& node, std::string_view what, std::source_location where) {
  if (++count_ > mostOfRule) return;
  host::Finding finding{.check = std::string(rule_), .node = names().of(node), .where = where};
  finding.text = fmt::format("{}: {}", shown(finding.node), what);
  if (const Call* call = callOf(node)) {
    finding.call = call->number;
    finding.callName = call->name;
    finding.text += fmt::format(" (call {}, {})", call->number, call->name);
  }
  notes_.add(std::move(finding));
}

void Report::add(const Variable& variable, std::string_view what, std::source_location where) {
  const Document& document = chart_.folder->document;
  const Node* node = document.find(variable.id);
  add(node != nullptr ? *node : document.graph(), what, where);
}

void Report::end() {
  if (count_ <= mostOfRule) return;
  notes_.add(host::Finding{
      .check = std::string(rule_),
      .text = fmt::format("{} more findings of the rule {}", count_ - mostOfRule, rule_),
      .where = std::source_location::current()});
  count_ = 0;
}

const NodeNames& Report::names() {
  return names_ ? *names_ : names_.emplace(chart_.folder->document.graph());
}

const Calls& Report::calls() {
  return calls_ ? *calls_ : calls_.emplace(Calls::read(chart_.folder->path));
}

const Call* Report::callOf(const Node& node) {
  for (const Node* at = &node; at != nullptr; at = names().parentOf(*at))
    if (const Call* call = calls().find(names().of(*at))) return call;
  return nullptr;
}

std::string called(const Variable& variable) {
  return variable.title == variable.id ? "it" : fmt::format("\"{}\"", shown(variable.title));
}

} // namespace render
