#include "read/Calls.h"

#include <charconv>
#include <fstream>

#include <nlohmann/json.hpp>

namespace render {
namespace {

/// Of the manifest's members only the calls: the columns may be many.
bool isOfCalls(int depth, nlohmann::json::parse_event_t event, const nlohmann::json& parsed) {
  return depth != 1 || event != nlohmann::json::parse_event_t::key || parsed == "calls";
}

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
  std::ifstream stream(chartFolder / "manifest.json");
  const auto manifest = nlohmann::json::parse(
      stream,
      [](int depth, nlohmann::json::parse_event_t event, nlohmann::json& parsed) {
        return isOfCalls(depth, event, parsed);
      },
      false);
  const auto found = manifest.is_object() ? manifest.find("calls") : manifest.end();
  if (!manifest.is_object() || found == manifest.end() || !found->is_object()) return calls;
  for (const auto& [node, text] : found->items())
    if (text.is_string())
      calls.callOfNode_.emplace(node, callOf(text.get_ref<const std::string&>()));
  return calls;
}

const Call* Calls::find(const std::string& node) const {
  const auto found = callOfNode_.find(node);
  return found == callOfNode_.end() || found->second.number == 0 ? nullptr : &found->second;
}

} // namespace render
