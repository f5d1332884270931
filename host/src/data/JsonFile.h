#pragma once

#include <string>
#include <string_view>

#include <host/JsonFile.h>
#include <nlohmann/json.hpp>

/// Checked access to JSON that a person wrote; what is not as it should be is
/// thrown as Refusal.
namespace host {

/// A member, or null when it is absent.
const nlohmann::json* member(const nlohmann::json& object, const char* key);

/// A value that must be a text of at most `longestText` bytes without NUL;
/// `what` names it in the refusal.
const std::string& textOf(const nlohmann::json& value, std::string_view what);

std::string textMember(const nlohmann::json& object, const char* key, std::string_view fallback);

/// A member that must be a list; an empty list when it is absent.
const nlohmann::json& listMember(const nlohmann::json& object, const char* key);

/// A value as a message shows it; of a list or an object only what it is.
std::string shownJson(const nlohmann::json& value);

} // namespace host
