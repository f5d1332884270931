#include "read/Calls.h"

#include <charconv>
#include <fstream>

#include <host/ChartFiles.h>
#include <nlohmann/json.hpp>

namespace render {
namespace {

/// Of "7 cx_addx_".
Call callOf(std::string_view text) {
  Call call;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, call.number);
  if (error != std::errc() || rest == end || *rest != ' ') return {};
  call.name.assign(rest + 1, end);
  return call;
}

} // namespace

Calls Calls::read(const std::filesystem::path& chartFolder) {
  Calls calls;
  if (!is_regular_file(chartFolder / host::callsName)) return calls;
  std::ifstream stream(chartFolder / host::callsName);
  const auto list = nlohmann::json::parse(stream, nullptr, false);
  if (!list.is_object()) return calls;
  for (const auto& [node, text] : list.items())
    if (text.is_string())
      calls.callOfNode_.emplace(node, callOf(text.get_ref<const std::string&>()));
  return calls;
}

const Call* Calls::find(const std::string& node) const {
  const auto found = callOfNode_.find(node);
  return found == callOfNode_.end() || found->second.number == 0 ? nullptr : &found->second;
}

} // namespace render
