#pragma once

#include <iostream>

#include <nlohmann/json.hpp>

namespace tools {

/// Prints one JSON value; bytes that are not UTF-8 become U+FFFD.
inline void print(const nlohmann::ordered_json& json) {
  constexpr int indent = 2;
  std::cout << json.dump(indent, ' ', false, nlohmann::ordered_json::error_handler_t::replace)
            << '\n';
}

} // namespace tools
